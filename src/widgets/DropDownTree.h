#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QModelIndex>
#include <QWidget>

#include <memory>

class QAbstractItemModel;
class QTreeView;

namespace Kavrel::UICore {

class DropDownTreeImp;
class SearchBox;

/// A drop-down whose list is a tree over any item model. The button shows the
/// path of the current item ("Materials > Wood > Oak"); the popup holds a
/// search field over the tree that filters as the user types, keeping the
/// ancestors of every matching item, so a match is always seen in its place.
///
/// The popup is made on first opening and shows the host's model through a
/// view: no widget per item, so models of a hundred thousand items open as
/// fast as a plain combo box. Filtering goes through a proxy only while a
/// filter is set.
///
/// Keys on the button: Space, Return, F4 or Alt+Down open the popup; Up and
/// Down step to the previous or next sibling; typing opens the popup with the
/// typed text as filter. In the popup: the arrows and Page keys move in the
/// tree, Return chooses, Escape clears the filter and then closes.
class KVUICORE_EXPORT DropDownTree : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString pathSeparator READ GetPathSeparator WRITE SetPathSeparator)
    Q_PROPERTY(QString prompt READ GetPrompt WRITE SetPrompt)

public:
    explicit DropDownTree(QWidget* parent = nullptr);
    ~DropDownTree() override;

    /// The model is not owned; a deleted model leaves the drop-down empty.
    void SetModel(QAbstractItemModel* model);
    QAbstractItemModel* GetModel() const;
    /// The column whose texts are shown, searched and joined into the path.
    void SetDisplayColumn(int column);
    int GetDisplayColumn() const;

    /// An index of the model (or an invalid index for none).
    void SetCurrentIndex(const QModelIndex& index);
    QModelIndex GetCurrentIndex() const;
    /// The display texts from the top level down to the current item.
    QStringList GetCurrentPath() const;
    QString GetCurrentPathText() const;

    QString GetPathSeparator() const;
    void SetPathSeparator(const QString& separator);
    /// Shown while there is no current item.
    QString GetPrompt() const;
    void SetPrompt(const QString& prompt);

    /// The filter of the popup's search field (made on demand, not shown).
    void SetFilterText(const QString& text);
    QString GetFilterText() const;
    /// The pause after typing in the popup before the tree filters, in ms.
    void SetFilterDelay(int milliseconds);
    int GetFilterDelay() const;

    void ShowPopup();
    void HidePopup();
    bool IsPopupVisible() const;
    /// Null until the popup is first needed.
    QTreeView* GetPopupView() const;
    SearchBox* GetPopupSearchBox() const;
    /// The model index of the view's index (through the filter when one is set).
    QModelIndex MapFromView(const QModelIndex& viewIndex) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void CurrentIndexChanged(const QModelIndex& index);
    void PopupAboutToShow();
    void PopupHidden();

public Q_SLOTS:
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(DropDownTree)
    friend class DropDownTreeImp;
    std::unique_ptr<DropDownTreeImp> const mpImp;
};

} // namespace Kavrel::UICore
