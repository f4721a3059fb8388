#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QByteArray>
#include <QFont>
#include <QObject>

#include <functional>

class QWidget;

namespace Kavrel::UICore::Internal {

// The one place a control's text font lives.
//
// A control's font is the application's font for its class (the item-view
// font for most controls), at the theme's pixel size ("FontPixelSizeVal")
// while the application font is the platform's own. An application font the
// host sets reaches every control whole, size included: the theme's size is
// the default, the host's font the last word, as with the text colour.
//
// The object keeps its widget's font so across application font changes and
// theme switches. A font the host sets on the widget itself wins until it is
// cleared with setFont(QFont()). The object is a child of the widget.
class KVUICORE_EXPORT ThemedFont final : public QObject
{
    Q_OBJECT

public:
    // Turns the base font into the one a control shows (bold, italic...).
    using Adjust = std::function<QFont(QFont)>;

    // className names the application font the widget follows; null for the
    // application's general font.
    explicit ThemedFont(QWidget* widget, const char* className = "QAbstractItemView", Adjust adjust = {});
    // For a control that sets its font itself (switching between looks):
    // the object leaves the widget's font alone and hands every new control
    // font to the handler.
    ThemedFont(QWidget* widget, std::function<void(const QFont&)> handler);
    ~ThemedFont() override;

    // The control font for a class, as described above.
    static QFont ControlFont(const char* className = "QAbstractItemView");

    static ThemedFont* Of(const QWidget* widget);

    void SetAdjust(Adjust adjust);
    // The font the widget gets while the host has not set one of its own.
    QFont GetFont() const;
    // Sets the widget's font unless the host set one on it.
    void Apply();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* mpWidget;
    QByteArray mClassName;
    bool mbGeneral;
    Adjust mAdjust;
    std::function<void(const QFont&)> mHandler;
    bool mbHostFont = false;
    QFont mHostFont;
    bool mbApplying = false;
};

} // namespace Kavrel::UICore::Internal
