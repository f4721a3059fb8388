#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QStringList>
#include <QWidget>

#include <memory>

class QLineEdit;

namespace Kavrel::UICore {

class SearchBoxImp;

/// The library's search field: a search icon, a prompt shown while the field is
/// empty, and a clear button that appears with text. Typing announces the
/// search through SearchChanged() once the user pauses (debounced; the delay is
/// settable, 0 announces every change at once); Return announces it at once
/// and submits it through SearchSubmitted(); Escape clears a non-empty field
/// (an empty field leaves Escape to its window). Submitted searches can be
/// remembered and offered again in a drop-down (Alt+Down, or the icon).
class KVUICORE_EXPORT SearchBox : public QWidget
{
    Q_OBJECT
    /// The search text.
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY TextChanged)
    /// The text shown while the box is empty.
    Q_PROPERTY(QString prompt READ GetPrompt WRITE SetPrompt)
    /// The pause after typing before a search is announced, in ms.
    Q_PROPERTY(int searchDelay READ GetSearchDelay WRITE SetSearchDelay)
    /// Whether submitted searches are remembered and offered.
    Q_PROPERTY(bool recentSearchesEnabled READ IsRecentSearchesEnabled WRITE SetRecentSearchesEnabled)

public:
    /// The pause after the last keystroke before a search is announced, in ms.
    static constexpr int DefaultSearchDelay = 200;
    /// How many recent searches are kept unless set otherwise.
    static constexpr int DefaultMaximumRecentSearches = 10;

    /// An empty search box.
    explicit SearchBox(QWidget* parent = nullptr);
    ~SearchBox() override;

    /// The search text.
    QString GetText() const;
    /// Text set by the host is announced at once, without the typing delay.
    void SetText(const QString& text);
    /// Empties the box; the empty search is announced at once.
    void Clear();

    /// The text shown while the box is empty.
    QString GetPrompt() const;
    /// Sets the text shown while the box is empty.
    void SetPrompt(const QString& prompt);

    /// The pause after typing before a search is announced, in ms.
    int GetSearchDelay() const;
    /// Negative delays count as 0.
    void SetSearchDelay(int milliseconds);
    /// True while a typed change waits for its delay.
    bool IsSearchPending() const;

    /// Whether submitted searches are remembered and offered.
    bool IsRecentSearchesEnabled() const;
    /// Turns remembering and offering recent searches on or off.
    void SetRecentSearchesEnabled(bool enabled);
    /// Most recent first, without duplicates.
    QStringList GetRecentSearches() const;
    /// Replaces the recent searches; blank and repeated texts are dropped.
    void SetRecentSearches(const QStringList& searches);
    /// Forgets every recent search.
    void ClearRecentSearches();
    /// How many recent searches are kept.
    int GetMaximumRecentSearches() const;
    /// Sets how many recent searches are kept (1 to 100); the oldest beyond it are
    /// dropped.
    void SetMaximumRecentSearches(int count);
    /// Opens the drop-down of recent searches (nothing when there are none).
    void ShowRecentSearches();

    /// The inner editor, for hosts that need its selection or validators.
    QLineEdit* GetLineEdit() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The search to run: after the delay, on Return, on clearing, on SetText.
    /// A text is never announced twice in a row.
    void SearchChanged(const QString& text);
    /// Return was pressed or a recent search was picked: the search was
    /// announced and remembered.
    void SearchSubmitted(const QString& text);
    /// Every change of the text, not debounced.
    void TextChanged(const QString& text);

public Q_SLOTS:
    /// Applies the theme's icon and colours again.
    void OnThemeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(SearchBox)
    friend class SearchBoxImp;
    std::unique_ptr<SearchBoxImp> const mpImp;
};

} // namespace Kavrel::UICore
