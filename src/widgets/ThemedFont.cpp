#include <KvUICore/widgets/ThemedFont_p.h>

#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSet>
#include <QWidget>

namespace Kavrel::UICore::Internal {

namespace {

// Qt tells of a new application font only the application object; one filter
// there passes it on to every control font.
class ApplicationFontWatch final : public QObject
{
public:
    static ApplicationFontWatch* Instance()
    {
        static QPointer<ApplicationFontWatch> watch;
        if (!watch && QCoreApplication::instance()) {
            watch = new ApplicationFontWatch(QCoreApplication::instance());
            QCoreApplication::instance()->installEventFilter(watch);
        }
        return watch;
    }

    QSet<ThemedFont*> mFonts;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationFontChange) {
            const QSet<ThemedFont*> fonts = mFonts;
            for (ThemedFont* font : fonts)
                font->Apply();
        }
        return false;
    }

private:
    using QObject::QObject;
};

void Watch(ThemedFont* font)
{
    if (ApplicationFontWatch* watch = ApplicationFontWatch::Instance())
        watch->mFonts.insert(font);
}

} // namespace

ThemedFont::ThemedFont(QWidget* widget, const char* className, Adjust adjust)
    : QObject(widget)
    , mpWidget(widget)
    , mClassName(className)
    , mbGeneral(className == nullptr)
    , mAdjust(std::move(adjust))
{
    Q_ASSERT(widget);
    widget->installEventFilter(this);
    Watch(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ThemedFont::Apply);
    Apply();
}

ThemedFont::ThemedFont(QWidget* widget, std::function<void(const QFont&)> handler)
    : QObject(widget)
    , mpWidget(widget)
    , mClassName("QAbstractItemView")
    , mbGeneral(false)
    , mHandler(std::move(handler))
{
    Q_ASSERT(widget);
    Watch(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ThemedFont::Apply);
}

ThemedFont::~ThemedFont()
{
    if (ApplicationFontWatch* watch = ApplicationFontWatch::Instance())
        watch->mFonts.remove(this);
}

QFont ThemedFont::ControlFont(const char* className)
{
    return WithThemePixelSize(className ? QApplication::font(className) : QApplication::font());
}

ThemedFont* ThemedFont::Of(const QWidget* widget)
{
    return widget ? widget->findChild<ThemedFont*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void ThemedFont::SetAdjust(Adjust adjust)
{
    mAdjust = std::move(adjust);
    Apply();
}

QFont ThemedFont::GetFont() const
{
    QFont font = ControlFont(mbGeneral ? nullptr : mClassName.constData());
    if (mAdjust)
        font = mAdjust(font);
    // Every property set: a parent's font change does not seep into it.
    font.setResolveMask(QFont::AllPropertiesResolved);
    return font;
}

void ThemedFont::Apply()
{
    if (mHandler) {
        mHandler(GetFont());
        return;
    }
    if (mbHostFont)
        return;
    const QFont font = GetFont();
    if (mpWidget->font() == font && mpWidget->testAttribute(Qt::WA_SetFont))
        return;
    mbApplying = true;
    mpWidget->setFont(font);
    mbApplying = false;
}

bool ThemedFont::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mpWidget && !mbApplying && !mHandler) {
        if (event->type() == QEvent::FontChange) {
            // A font set on the widget that is not ours is the host's; a
            // cleared one (nothing set) hands the font back. Ours coming back
            // is a style sheet's repolish restoring what it saved.
            if (!mpWidget->testAttribute(Qt::WA_SetFont)) {
                mbHostFont = false;
                Apply();
            } else if (mpWidget->font() != GetFont()) {
                mbHostFont = true;
                mHostFont = mpWidget->font();
            }
        } else if (event->type() == QEvent::StyleChange && mbHostFont && mpWidget->font() != mHostFont) {
            mbApplying = true;
            mpWidget->setFont(mHostFont);
            mbApplying = false;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Kavrel::UICore::Internal
