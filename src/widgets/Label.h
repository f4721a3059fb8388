#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLabel>
#include <QPixmap>

#include <memory>

namespace Kavrel::UICore {

class LabelImp;

/// A single-line label in the theme's text colour. Text that does not fit is
/// cut at the right and shown whole as a tool tip; text that fits shows the
/// reserved tool tip instead. An optional small pixmap at the right edge has a
/// tool tip of its own and reports clicks. Word-wrapping and rich-text labels
/// paint as a plain QLabel.
class KVUICORE_EXPORT Label : public QLabel
{
    Q_OBJECT
    /// The text shown.
    Q_PROPERTY(QString text READ text WRITE SetText NOTIFY TextChanged)
    /// The theme key of the text colour.
    Q_PROPERTY(QString textColorThemeKey READ GetTextColorThemeKey WRITE SetTextColorThemeKey)

public:
    /// An empty label with the theme's text colour.
    explicit Label(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    /// A label showing text, with the theme's text colour.
    explicit Label(const QString& text, QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~Label() override;
    /// Sets the text; emits TextChanged when it differs from the current text.
    void SetText(const QString& text);

    /// The theme key of the text colour.
    QString GetTextColorThemeKey() const;
    /// Ignored for a key the theme lacks, and for the current key unless force.
    void SetTextColorThemeKey(const QString& key, bool force = false);

    /// The tool tip shown while the text is shown whole.
    QString GetReservedToolTip() const;
    /// Sets the tool tip shown while the text is shown whole; a cut text shows the full
    /// text instead.
    void SetReservedToolTip(const QString& toolTip);

    /// The pixmap shown right of the text; null when none.
    QPixmap GetRightPixmap() const;
    /// Shows a pixmap right of the text; a null pixmap removes it.
    void SetRightPixmap(const QPixmap& pixmap);
    /// The tool tip of the right pixmap.
    QString GetRightPixmapTooltip() const;
    /// Sets the tool tip of the right pixmap.
    void SetRightPixmapTooltip(const QString& toolTip);

    /// When true the label keeps its width fixed to what its text (and right
    /// pixmap) needs, following text and font changes.
    bool GetAutoFixedWidth() const;
    /// Keeps the width fixed to what the text needs, or releases it.
    void SetAutoFixedWidth(bool autoFixedWidth);

    /// The width of the text's bounding rectangle in the label's font.
    int getTextWidth() const;

Q_SIGNALS:
    /// The label was moved or resized.
    void GeometryChanged();
    /// The label is being shown.
    void AboutToShow();
    /// The right pixmap was clicked.
    void RightPixmapClicked();
    /// Emitted when SetText changes the text.
    void TextChanged(const QString& text);

public Q_SLOTS:
    /// Applies the theme's text colour again.
    void OnThemeChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(Label)
    void Initialize();

    friend class LabelImp;
    std::unique_ptr<LabelImp> const mpImp;
};

} // namespace Kavrel::UICore
