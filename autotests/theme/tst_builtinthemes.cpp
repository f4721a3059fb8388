// The three built-in themes: every catalogue key defined with the kind of value
// the library reads, every referenced image loadable, icons holding all their
// sizes, and the contrast of text and outlines against what lies behind them.

#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeKeyCatalogue.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QIcon>
#include <QImageReader>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Kavrel::UICore;

namespace {

// What a pair must reach in each theme. Light and Dark are held to WCAG 2 AA
// for text; the high-contrast theme to AAA for text and to 3:1 for disabled
// text and for the outlines and marks that show state.
enum class PairKind
{
    Text,         // 4.5 in Light and Dark, 7 in HIGLight
    DisabledText, // 3 in HIGLight
    NonText,      // 3 in HIGLight
};

// Every foreground of a row against every background of it.
struct ContrastPairs
{
    QList<const char*> foregrounds;
    PairKind kind;
    QList<const char*> backgrounds;
};

// Extend this table when a control puts a themed colour on a themed surface.
const ContrastPairs kContrastPairs[] = {
    {{"FontNormal1"},
     PairKind::Text,
     {"Container1", "WidgetContainer9", "WidgetContainer12", "WidgetContainer3", "ActiveContainer1", "HoverContainer1",
      "ClickContainer1", "RolloutContainerTitleBackgroundColor", "ToolTipBackground", "DropDownContainer",
      "DropDownButtonHoverBackground", "DropDownButtonClickedBackground"}},
    {{"FontNormal3"},
     PairKind::Text,
     {"DropDownMenuBackground", "DropDownMenuHoverBackground", "DropDownMenuClickedBackground"}},
    {{"FontGroupHeader"}, PairKind::Text, {"DropDownGroupLabel"}},
    {{"TitleBarTextColor"}, PairKind::Text, {"TitleBarTopColor", "TitleBarBottomColor"}},
    {{"FontBuiltInNormal1"},
     PairKind::Text,
     {"MenuBuiltInBackgroundColor1", "MenuBuiltInItemSelectedBackgroundColor1",
      "MenuBuiltInItemPressedBackgroundColor1"}},
    {{"FontSearchPrompt"}, PairKind::Text, {"SearchBoxNormalBackground", "SearchBoxHoverBackground"}},
    {{"FontSearch2"}, PairKind::Text, {"SearchBoxFocusedBackground"}},
    {{"FontActive1", "FontUnderline1"}, PairKind::Text, {"Container1"}},
    {{"FontColorDisabled"}, PairKind::DisabledText, {"Container1", "WidgetContainerDisable"}},
    {{"FontDisable"}, PairKind::DisabledText, {"DropDownMenuBackground"}},
    {{"FontBuiltInDisable1"}, PairKind::DisabledText, {"MenuBuiltInBackgroundColor1"}},
    {{"FontNormalDisabled1"}, PairKind::DisabledText, {"Container1"}},
    // Focus outlines, control outlines and marks against the container behind them.
    {{"FocusOutline1", "FocusOutline2", "WidgetOutline3", "WidgetOutline6", "WidgetOutline9", "WidgetOutline10",
      "HoverOutline4", "HoverOutline7", "DropDownButtonFocusOutline", "SearchBoxFocusedBorder",
      "DropDownMenuBorderColor"},
     PairKind::NonText,
     {"Container1"}},
    {{"FocusOutline2"}, PairKind::NonText, {"WidgetContainer12"}},
    {{"CheckMark"}, PairKind::NonText, {"WidgetContainer9"}},
    {{"CheckMark1"}, PairKind::NonText, {"WidgetContainer11"}},
    {{"Triangle"}, PairKind::NonText, {"RolloutContainerTitleBackgroundColor"}},
    {{"Triangle2"}, PairKind::NonText, {"WidgetContainer4"}},
    {{"DropDownTriangle"}, PairKind::NonText, {"DropDownContainer"}},
    {{"ControlActive1"}, PairKind::NonText, {"WidgetContainer5"}},
};

struct ContrastPair
{
    const char* foreground;
    const char* background;
    PairKind kind;
};

QList<ContrastPair> Pairs()
{
    QList<ContrastPair> pairs;
    for (const ContrastPairs& row : kContrastPairs) {
        for (const char* foreground : row.foregrounds) {
            for (const char* background : row.backgrounds)
                pairs.append({foreground, background, row.kind});
        }
    }
    return pairs;
}

double Minimum(PairKind kind, bool highContrast)
{
    switch (kind) {
    case PairKind::Text:
        return highContrast ? 7.0 : 4.5;
    case PairKind::DisabledText:
    case PairKind::NonText:
        return highContrast ? 3.0 : 0.0;
    }
    return 0.0;
}

// The colours a key paints with: the colour itself, or every stop of a gradient.
QList<QColor> PaintedColors(ThemeManager* themes, const QString& key)
{
    const QBrush brush = themes->GetBrush(key, QRect(0, 0, 10, 24));
    if (const QGradient* gradient = brush.gradient()) {
        QList<QColor> colors;
        for (const QGradientStop& stop : gradient->stops())
            colors.append(stop.second);
        return colors;
    }
    if (brush.style() == Qt::SolidPattern)
        return {brush.color()};
    return {};
}

const QStringList kThemes = {QStringLiteral("Light"), QStringLiteral("Dark"), QStringLiteral("HIGLight")};

QString ThemeFilePath(const QString& theme)
{
    return QStringLiteral(KVUICORE_THEMES_DIR "/%1Theme.xbel").arg(theme);
}

// Element kind ("Color", "String", ...) and the attributes of every entry of a theme file.
struct FileEntry
{
    QString kind;
    QString value;
    int colorChildren = 0;
};

QHash<QString, FileEntry> ReadEntries(const QString& path, QString* error)
{
    QHash<QString, FileEntry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = file.errorString();
        return entries;
    }
    QXmlStreamReader xml(&file);
    QString current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const QString name = xml.name().toString();
        if (name == QLatin1String("xbel"))
            continue;
        if (name == QLatin1String("hex") || name == QLatin1String("rgba")) {
            ++entries[current].colorChildren;
            continue;
        }
        current = xml.attributes().value(QLatin1String("name")).toString();
        FileEntry& entry = entries[current];
        if (!entry.kind.isEmpty())
            *error = QStringLiteral("%1 is defined twice").arg(current);
        entry.kind = name;
        const QXmlStreamAttributes attributes = xml.attributes();
        const QLatin1String source(attributes.hasAttribute(QLatin1String("file")) ? "file" : "value");
        entry.value = attributes.value(source).toString();
    }
    if (xml.hasError())
        *error = xml.errorString();
    return entries;
}

QString UseName(ThemeKeyUse use)
{
    const char* const names[] = {"Color", "ColorOrBrush", "Brush", "String", "Int", "Icon", "Exists", "HostOnly"};
    return QString::fromLatin1(names[int(use)]);
}

ThemeManager* Switch(const QString& theme)
{
    ThemeManager* themes = ThemeManager::GetInstance();
    return themes->SetCurrentTheme(theme) ? themes : nullptr;
}

} // namespace

class tst_BuiltInThemes : public QObject
{
    Q_OBJECT

    QStringList mWarnings;

private slots:
    void initTestCase()
    {
        Internal::SetWarningHook([this](const QString& title, const QString& text) {
            mWarnings.append(title + QLatin1String(": ") + text);
            return true;
        });
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void cleanupTestCase()
    {
        Internal::SetWarningHook(nullptr);
        QVERIFY2(mWarnings.isEmpty(), qPrintable(mWarnings.join(QLatin1Char('\n'))));
    }

    void catalogueKeys_data()
    {
        QTest::addColumn<QString>("theme");
        for (const QString& theme : kThemes)
            QTest::newRow(qPrintable(theme)) << theme;
    }

    void catalogueKeys()
    {
        QFETCH(QString, theme);
        QString error;
        const QHash<QString, FileEntry> entries = ReadEntries(ThemeFilePath(theme), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        ThemeManager* themes = Switch(theme);
        QVERIFY(themes);
        // A file loaded by a theme switch is read before the switch records the
        // new theme, so a reference in it would expand against the old one.
        const QByteArray bytes = Probe::ReadFile(ThemeFilePath(theme));
        QVERIFY(!bytes.isEmpty());
        QVERIFY2(!bytes.contains("$("), "a theme file refers to another entry");

        // Hover and press rings on check boxes are a high-contrast feature.
        const QSet<QString> onlyInHighContrast = {QStringLiteral("FocusOutline3"), QStringLiteral("FocusOutline4"),
                                                  QStringLiteral("FocusOutline7")};
        const QSet<QString> knownKinds = {QStringLiteral("Color"),  QStringLiteral("Icon"),
                                          QStringLiteral("Int"),    QStringLiteral("ScalableInt"),
                                          QStringLiteral("String"), QStringLiteral("Size")};
        std::size_t count = 0;
        const ThemeKeyEntry* catalogue = ThemeKeyCatalogue(&count);
        QCOMPARE(count, std::size_t(389));
        QStringList faults;
        for (std::size_t i = 0; i < count; ++i) {
            const QString key = QString::fromLatin1(catalogue[i].text);
            const ThemeKeyUse use = catalogue[i].use;
            const FileEntry entry = entries.value(key);
            const QString where = QStringLiteral("%1 (%2)").arg(key, UseName(use));
            if (onlyInHighContrast.contains(key)) {
                if (themes->Exists(key) != (theme == QLatin1String("HIGLight")))
                    faults << where + QStringLiteral(": present only in HIGLight");
                else if (themes->Exists(key) && !themes->GetColor(key).isValid())
                    faults << where + QStringLiteral(": not a colour");
                continue;
            }
            if (!themes->Exists(key)) {
                faults << where + QStringLiteral(": missing");
                continue;
            }
            switch (use) {
            case ThemeKeyUse::Color:
                if (entry.kind != QLatin1String("Color") || entry.colorChildren != 1 ||
                    !themes->GetColor(key).isValid())
                    faults << where + QStringLiteral(": not a single colour");
                break;
            case ThemeKeyUse::ColorOrBrush:
            case ThemeKeyUse::Brush:
                if (entry.kind != QLatin1String("Color") || PaintedColors(themes, key).isEmpty())
                    faults << where + QStringLiteral(": not a colour or gradient");
                break;
            case ThemeKeyUse::String:
                if (entry.kind != QLatin1String("String") || themes->GetString(key).isEmpty())
                    faults << where + QStringLiteral(": not a non-empty string");
                break;
            case ThemeKeyUse::Int:
                if (entry.kind != QLatin1String("Int") && entry.kind != QLatin1String("ScalableInt"))
                    faults << where + QStringLiteral(": not an integer");
                break;
            case ThemeKeyUse::Icon:
                if (entry.kind != QLatin1String("Icon") || themes->GetImage(key, QSize(16, 16)).isNull())
                    faults << where + QStringLiteral(": not an icon");
                break;
            case ThemeKeyUse::Exists:
                // FontPixelSizeVal: a pixel size for menu text.
                if (entry.kind != QLatin1String("Int") || themes->GetInt(key) < 8 || themes->GetInt(key) > 32)
                    faults << where + QStringLiteral(": not a pixel size");
                break;
            case ThemeKeyUse::HostOnly:
                if (!knownKinds.contains(entry.kind))
                    faults << where + QStringLiteral(": unexpected element %1").arg(entry.kind);
                break;
            }
        }
        // The base file's style sheets refer to these.
        for (const char* key :
             {"ScrollBarBackground", "ScrollBarHandleNormalBackground", "ScrollBarHandleHoverBackground",
              "HScrollBarSubLine", "HScrollBarAddLine", "ToolTipBackground", "ToolTipBorder"}) {
            if (!themes->GetColor(QString::fromLatin1(key)).isValid())
                faults << QString::fromLatin1(key) + QStringLiteral(": base file reference not a colour");
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
        QCOMPARE(themes->GetString(ThemeFileKey::CurrentTheme), theme);
        QVERIFY(
            themes->GetStyleSheet(QStringLiteral("ScrollBarGlobal"))
                .contains(themes->GetColor(QStringLiteral("ScrollBarHandleNormalBackground")).name(QColor::HexArgb)));
    }

    void resourcePathsLoad_data() { catalogueKeys_data(); }

    void resourcePathsLoad()
    {
        QFETCH(QString, theme);
        QString error;
        const QHash<QString, FileEntry> entries = ReadEntries(ThemeFilePath(theme), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QStringList faults;
        int paths = 0;
        for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
            const QString& path = it.value().value;
            if (!path.startsWith(QLatin1String(":/")))
                continue;
            ++paths;
            QImageReader reader(path);
            const QImage image = reader.read();
            if (image.isNull())
                faults << QStringLiteral("%1: %2 does not load (%3)").arg(it.key(), path, reader.errorString());
            else if (image.width() < 16 || image.height() < 16)
                faults << QStringLiteral("%1: %2 is smaller than 16 pixels").arg(it.key(), path);
            // The busy animation takes its frames through QIcon at 16 by 16.
            if (QIcon(path).pixmap(16, 16).isNull())
                faults << QStringLiteral("%1: %2 gives no icon pixmap").arg(it.key(), path);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
        QVERIFY(paths > 150);
    }

    void iconsHoldAllSizes_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("key");
        std::size_t count = 0;
        const ThemeKeyEntry* catalogue = ThemeKeyCatalogue(&count);
        for (const QString& theme : kThemes) {
            for (std::size_t i = 0; i < count; ++i) {
                if (catalogue[i].use == ThemeKeyUse::Icon)
                    QTest::addRow("%s %s", qPrintable(theme), catalogue[i].text) << theme << catalogue[i].text;
            }
            QTest::addRow("%s MiniButtonToggleOn", qPrintable(theme)) << theme << QStringLiteral("MiniButtonToggleOn");
        }
    }

    void iconsHoldAllSizes()
    {
        QFETCH(QString, theme);
        QFETCH(QString, key);
        ThemeManager* themes = Switch(theme);
        QVERIFY(themes);

        // The container holds every size, smallest first, as the reader returns them.
        QString error;
        const QString path = ReadEntries(ThemeFilePath(theme), &error).value(key).value;
        QVERIFY2(path.endsWith(QLatin1String(".ico")), qPrintable(path));
        QImageReader reader(path);
        QList<int> widths;
        do {
            const QImage image = reader.read();
            if (image.isNull())
                break;
            QCOMPARE(image.height(), image.width());
            widths.append(image.width());
        } while (reader.jumpToNextImage());
        QCOMPARE(widths, (QList<int>{16, 24, 32, 48, 64}));

        for (int size : {16, 24, 32, 48, 64}) {
            const QImage image = themes->GetImage(key, QSize(size, size));
            QCOMPARE(image.size(), QSize(size, size));
            // Not an empty canvas: the switch is drawn.
            int opaque = 0;
            for (int i = 0; i < size * size; ++i)
                opaque += qAlpha(image.pixel(i % size, i / size)) > 200 ? 1 : 0;
            QVERIFY2(opaque > size * size / 8, qPrintable(QStringLiteral("%1 px: %2 opaque").arg(size).arg(opaque)));
        }
        // A size between two stored ones gets the narrowest image, never a scaled one.
        QCOMPARE(themes->GetImage(key, QSize(20, 20)).size(), QSize(16, 16));
    }

    void everyIconSourceIsCompiledIn()
    {
        QDirIterator it(QStringLiteral(KVUICORE_SOURCE_DIR "/resources/icons"), {QStringLiteral("*.svg")}, QDir::Files);
        QStringList missing;
        int count = 0;
        while (it.hasNext()) {
            it.next();
            ++count;
            if (!QFile::exists(QStringLiteral(":/icons/") + it.fileName()))
                missing << it.fileName();
        }
        QVERIFY(count > 0);
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char(' '))));
    }

    void contrast_data() { catalogueKeys_data(); }

    void contrast()
    {
        QFETCH(QString, theme);
        ThemeManager* themes = Switch(theme);
        QVERIFY(themes);
        const bool highContrast = theme == QLatin1String("HIGLight");

        QStringList faults;
        double lowest = 100.0;
        QString lowestPair;
        for (const ContrastPair& pair : Pairs()) {
            const QString fgKey = QString::fromLatin1(pair.foreground);
            const QString bgKey = QString::fromLatin1(pair.background);
            const QList<QColor> foregrounds = PaintedColors(themes, fgKey);
            const QList<QColor> backgrounds = PaintedColors(themes, bgKey);
            if (foregrounds.isEmpty() || backgrounds.isEmpty()) {
                faults << QStringLiteral("%1 on %2: a colour is missing").arg(fgKey, bgKey);
                continue;
            }
            const double minimum = Minimum(pair.kind, highContrast);
            for (const QColor& fg : foregrounds) {
                for (const QColor& bg : backgrounds) {
                    const double ratio = Probe::Contrast(fg, bg);
                    const QString name = QStringLiteral("%1 %2 on %3 %4 = %5:1")
                                             .arg(fgKey, fg.name(), bgKey, bg.name())
                                             .arg(ratio, 0, 'f', 2);
                    if (minimum > 0.0 && ratio < lowest) {
                        lowest = ratio;
                        lowestPair = name;
                    }
                    if (ratio < minimum)
                        faults << QStringLiteral("%1, below %2:1").arg(name).arg(minimum);
                }
            }
        }
        qInfo("%s: lowest contrast among checked pairs %s", qPrintable(theme), qPrintable(lowestPair));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(tst_BuiltInThemes)
#include "tst_builtinthemes.moc"
