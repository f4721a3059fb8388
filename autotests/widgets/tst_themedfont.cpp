#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextLabel.h>

#include <QFontDatabase>

#include <functional>

using namespace Kavrel::UICore;

namespace {

// Builds a control in the window and returns the widget its text is drawn with.
using Make = std::function<QWidget*(QWidget* window)>;

template <class T> QWidget* Itself(QWidget* window)
{
    return new T(window);
}

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_ThemedFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup() { QApplication::setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont)); }

    void controlsFollowTheApplicationFont_data()
    {
        QTest::addColumn<Make>("make");
        QTest::newRow("Label") << Make(Itself<Label>);
        QTest::newRow("TextLabel") << Make(Itself<TextLabel>);
        QTest::newRow("CheckBox") << Make(Itself<CheckBox>);
        QTest::newRow("PushButton") << Make(Itself<PushButton>);
        QTest::newRow("DropDown") << Make(Itself<DropDown>);
        QTest::newRow("LineEdit") << Make(Itself<LineEdit>);
        QTest::newRow("TextBox editor") << Make([](QWidget* w) { return (new TextBox(w))->GetLineEdit(); });
        QTest::newRow("Slider") << Make([](QWidget* w) { return (new Slider(w))->GetSliderControl(); });
        QTest::newRow("RolloutContainer title") << Make(Itself<RolloutContainer>);
    }

    // The theme's pixel size is the default; an application font the host
    // sets reaches controls already built, and leaves again with it.
    void controlsFollowTheApplicationFont()
    {
        QFETCH(Make, make);
        QVERIFY(ThemeManager::GetInstance()->Exists(ThemeFileKey::FontPixelSizeVal));
        const int themed = ThemeManager::GetInstance()->GetInt(ThemeFileKey::FontPixelSizeVal);
        QWidget window;
        new QVBoxLayout(&window);
        QWidget* part = make(&window);
        window.layout()->addWidget(part->parentWidget() == &window ? part : part->parentWidget());
        QVERIFY(Probe::Shown(&window));
        const auto shown = [part] {
            QCoreApplication::processEvents(); // a text box hands its font on when it paints
            part->window()->grab();
            return part->font();
        };
        QCOMPARE(shown().pixelSize(), themed);

        QFont large = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        large.setPointSize(16);
        QApplication::setFont(large);
        QCOMPARE(shown().pointSize(), 16);
        QCOMPARE(shown().family(), large.family());

        QApplication::setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
        QCOMPARE(shown().pixelSize(), themed);
    }

    void fontTheHostSetsOnAControlWinsUntilCleared()
    {
        Label label(QStringLiteral("Label"));
        QFont own = label.font();
        own.setPixelSize(30);
        label.setFont(own);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(label.font().pixelSize(), 30);
        label.setFont(QFont());
        QCOMPARE(label.font().pixelSize(), ThemeManager::GetInstance()->GetInt(ThemeFileKey::FontPixelSizeVal));
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }
};

QTEST_MAIN(tst_ThemedFont)
#include "tst_themedfont.moc"
