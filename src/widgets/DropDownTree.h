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
    /// The texts from the root down to the current item; empty when there is none.
    Q_PROPERTY(QStringList currentPath READ GetCurrentPath NOTIFY CurrentIndexChanged)
    /// The text between the parts of the shown path; " > " by default.
    Q_PROPERTY(QString pathSeparator READ GetPathSeparator WRITE SetPathSeparator)
    /// The text shown while there is no current item.
    Q_PROPERTY(QString prompt READ GetPrompt WRITE SetPrompt)

public:
    /// An empty drop-down tree without a model.
    explicit DropDownTree(QWidget* parent = nullptr);
    ~DropDownTree() override;

    /// The model is not owned; a deleted model leaves the drop-down empty.
    void SetModel(QAbstractItemModel* model);
    /// The model; null when none is set or it was deleted.
    QAbstractItemModel* GetModel() const;
    /// The column whose texts are shown, searched and joined into the path.
    void SetDisplayColumn(int column);
    /// The column whose texts are shown; 0 unless set.
    int GetDisplayColumn() const;

    /// An index of the model (or an invalid index for none).
    void SetCurrentIndex(const QModelIndex& index);
    /// The current item's index; invalid when there is none.
    QModelIndex GetCurrentIndex() const;
    /// The display texts from the top level down to the current item.
    QStringList GetCurrentPath() const;
    /// The current path joined with the path separator; empty without a current item.
    QString GetCurrentPathText() const;

    /// The text between the parts of the shown path; " > " by default.
    QString GetPathSeparator() const;
    /// Sets the text between the parts of the shown path.
    void SetPathSeparator(const QString& separator);
    /// Shown while there is no current item.
    QString GetPrompt() const;
    /// Sets the text shown while there is no current item.
    void SetPrompt(const QString& prompt);

    /// The filter of the popup's search field (made on demand, not shown).
    void SetFilterText(const QString& text);
    /// The filter of the popup's search field; empty before the popup exists.
    QString GetFilterText() const;
    /// The pause after typing in the popup before the tree filters, in ms.
    void SetFilterDelay(int milliseconds);
    /// The pause after typing before the tree filters, in ms.
    int GetFilterDelay() const;

    /// Opens the popup with the current item selected; nothing happens without a model or
    /// when it is open.
    void ShowPopup();
    /// Closes the popup when it is open.
    void HidePopup();
    /// Whether the popup is open.
    bool IsPopupVisible() const;
    /// Null until the popup is first needed.
    QTreeView* GetPopupView() const;
    /// The popup's search field; null until the popup is first needed.
    SearchBox* GetPopupSearchBox() const;
    /// The model index of the view's index (through the filter when one is set).
    QModelIndex MapFromView(const QModelIndex& viewIndex) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The current item changed; an invalid index when there is none any more.
    void CurrentIndexChanged(const QModelIndex& index);
    /// The popup is about to open.
    void PopupAboutToShow();
    /// The popup closed.
    void PopupHidden();

public Q_SLOTS:
    /// Applies the theme to the popup and repaints.
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
