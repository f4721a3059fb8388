// The README's host sample, run to its end: a themed control, a themed colour,
// and a theme switch that changes that colour. Exits 0 when all of that works.
#include <KvUICore/KvUICoreVersion.h>
#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>

#include <QApplication>
#include <QTimer>

#include <cstdio>

using namespace Kavrel::UICore;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    CoreUIManager::Initialize(); // once, after the application object

    auto* box = new CheckBox(QStringLiteral("Cast shadows")); // a themed control
    box->show();

    ThemeManager* themes = ThemeManager::GetInstance();
    const QColor light = themes->GetColor(ThemeFileKey::FontNormal1); // a themed colour
    const bool switched = themes->SetCurrentTheme(QStringLiteral("Dark")); // every control repaints itself
    const QColor dark = themes->GetColor(ThemeFileKey::FontNormal1);
    const QColor shown = box->palette().color(QPalette::WindowText);

    QTimer::singleShot(0, &app, &QApplication::quit);
    const int result = app.exec();
    delete box;
    CoreUIManager::Uninitialize(); // before the application object goes

    std::printf("KvUICore %s: Light %s, Dark %s, check box %s\n", KVUICORE_VERSION_STRING,
                qPrintable(light.name()), qPrintable(dark.name()), qPrintable(shown.name()));
    if (!switched || !light.isValid() || !dark.isValid() || light == dark || shown != dark) {
        std::fprintf(stderr, "the theme did not reach the host\n");
        return 1;
    }
    return result;
}
