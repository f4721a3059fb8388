// test-options: TIMEOUT 300 LABELS slow
#include "../PaintProbe.h"

#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QStringEncoder>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <limits>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Kavrel::UICore;

namespace {

const char* const kNavigationDocument = "<Root id=\"root\">"
                                        "<A id=\"a\"><B id=\"b1\"/><B id=\"b2\"><C id=\"c\"/></B></A>"
                                        "<Other id=\"o\"/>"
                                        "</Root>";

const XmlWordTable& alignmentTable()
{
    static const XmlWordTable table = {
        {0x1, QStringLiteral("AlignLeft")},    {0x2, QStringLiteral("AlignRight")},
        {0x4, QStringLiteral("AlignHCenter")}, {0x20, QStringLiteral("AlignTop")},
        {0x40, QStringLiteral("AlignBottom")}, {0x80, QStringLiteral("AlignVCenter")},
        {0x84, QStringLiteral("AlignCenter")},
    };
    return table;
}

const XmlWordTable& placementTable()
{
    static const XmlWordTable table = {{0, QStringLiteral("Default")},
                                       {1, QStringLiteral("Left")},
                                       {2, QStringLiteral("FullRow")},
                                       {3, QStringLiteral("Control")}};
    return table;
}

// The typed reader and writer that match the value's type.
QVariant readTyped(const XmlFiler& filer, const QString& name, const QVariant& defaultValue)
{
    switch (defaultValue.metaType().id()) {
    case QMetaType::Int:
        return filer.ReadInt(name, defaultValue.toInt());
    case QMetaType::UInt:
        return filer.ReadUInt(name, defaultValue.toUInt());
    case QMetaType::Long:
        return QVariant::fromValue(filer.ReadLong(name, defaultValue.value<long>()));
    case QMetaType::ULong:
        return QVariant::fromValue(filer.ReadULong(name, defaultValue.value<ulong>()));
    case QMetaType::LongLong:
        return filer.ReadLongLong(name, defaultValue.toLongLong());
    case QMetaType::ULongLong:
        return filer.ReadULongLong(name, defaultValue.toULongLong());
    case QMetaType::Double:
        return filer.ReadDouble(name, defaultValue.toDouble());
    case QMetaType::Bool:
        return filer.ReadBool(name, defaultValue.toBool());
    case QMetaType::QRect:
        return filer.ReadRect(name, defaultValue.toRect());
    case QMetaType::QSize:
        return filer.ReadSize(name, defaultValue.toSize());
    case QMetaType::QPoint:
        return filer.ReadPoint(name, defaultValue.toPoint());
    case QMetaType::QDateTime:
        return filer.ReadDateTime(name, defaultValue.toDateTime());
    default:
        return filer.ReadString(name, defaultValue.toString());
    }
}

// Two complete versions of a document, told apart by their element counts.
QString versionedDocument(int version)
{
    const int count = version == 1 ? 2000 : 3000;
    QString xml = QStringLiteral("<Root version=\"%1\" count=\"%2\">").arg(version).arg(count);
    for (int i = 0; i < count; ++i)
        xml += QStringLiteral("<Item index=\"%1\" text=\"padding padding padding %1\"/>").arg(i);
    xml += QStringLiteral("</Root>");
    return xml;
}

const char* const kSaveChildVariable = "KVUICORE_XMLFILER_SAVE_CHILD";
const char* const kUnprivilegedVariable = "KVUICORE_XMLFILER_UNPRIVILEGED";

// The document as reading sees it: nodes in order, attributes sorted.
QString canonical(const QDomNode& node)
{
    QString out;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isProcessingInstruction() && child.nodeName() == QLatin1String("xml"))
            continue;
        out += QString::number(child.nodeType()) + child.nodeName() + QLatin1Char('|') + child.nodeValue();
        QStringList attributes;
        const QDomNamedNodeMap map = child.attributes();
        for (int i = 0; i < map.count(); ++i)
            attributes.append(map.item(i).nodeName() + QLatin1Char('=') + map.item(i).nodeValue());
        attributes.sort();
        out += attributes.join(QLatin1Char(' ')) + QLatin1Char('{') + canonical(child) + QLatin1Char('}');
    }
    return out;
}

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray withAttributes(int count)
{
    QByteArray xml = "<Root";
    for (int i = 0; i < count; ++i)
        xml += " a" + QByteArray::number(i) + "=''";
    return xml + "/>";
}

// Collects the diagnostics written while it lives.
struct Diagnostics
{
    QStringList texts;
    Diagnostics()
    {
        Internal::SetDiagnosticHook([this](const QString& text) { texts.append(text); });
    }
    ~Diagnostics() { Internal::SetDiagnosticHook({}); }
    bool Contains(const QString& a, const QString& b) const
    {
        for (const QString& text : texts) {
            if (text.contains(a) && text.contains(b))
                return true;
        }
        return false;
    }
};

} // namespace

class tst_XmlFiler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Child mode of killedSaveNeverTruncatesFile: save until killed.
        const QByteArray target = qgetenv(kSaveChildVariable);
        if (!target.isEmpty()) {
            XmlFiler first;
            XmlFiler second;
            first.Parse(versionedDocument(1));
            second.Parse(versionedDocument(2));
            for (int i = 0;; ++i)
                (i % 2 ? second : first).Save(QString::fromLocal8Bit(target));
        }
#ifdef Q_OS_UNIX
        // Child mode of readOnlyFolderFailsInsteadOfWritingInPlace: save without
        // root's rights; the exit code tells whether the save was refused.
        const QString unprivileged = qEnvironmentVariable(kUnprivilegedVariable);
        if (!unprivileged.isEmpty()) {
            if (::setgid(65534) != 0 || ::setuid(65534) != 0)
                std::exit(2);
            XmlFiler filer;
            const bool saved =
                filer.OpenOrCreate(unprivileged) && filer.WriteInt(QStringLiteral("changed"), 1) && filer.Save();
            std::exit(saved ? 1 : 0);
        }
#endif
        QVERIFY(mDir.isValid());
    }

    void openAndParseFailures()
    {
        Diagnostics diagnostics;
        XmlFiler filer;
        // A missing file fails silently.
        QVERIFY(!filer.Open(mDir.filePath(QStringLiteral("missing.xml"))));
        QVERIFY(filer.GetFileName().isEmpty());
        QVERIFY(diagnostics.texts.isEmpty());
        QVERIFY(!filer.Parse(QStringLiteral("not xml")));
        QVERIFY(filer.Parse(QString::fromLatin1(kNavigationDocument)));
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("root"));
        QCOMPARE(filer.GetChildElementCount(), 2);
    }

    void goToPath_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QString>("expectedId");

        QTest::newRow("empty path stays") << "/Root/A" << QStringLiteral("") << true << "a";
        QTest::newRow("blank path stays") << "/Root/A" << QStringLiteral("  ") << true << "a";
        QTest::newRow("absolute root") << "/Root/A" << QStringLiteral("/Root") << true << "root";
        QTest::newRow("slash alone is the root") << "/Root/A" << QStringLiteral("/") << true << "root";
        QTest::newRow("absolute takes first of a name") << "" << QStringLiteral("/Root/A/B") << true << "b1";
        QTest::newRow("absolute with wrong root fails") << "/Root/A" << QStringLiteral("/Other/X") << false << "a";
        QTest::newRow("missing below first of a name fails")
            << "/Root/A" << QStringLiteral("/Root/A/B/C") << false << "a";
        QTest::newRow("backslashes") << "" << QStringLiteral("\\Root\\Other") << true << "o";
        QTest::newRow("relative") << QStringLiteral("") << QStringLiteral("A/B") << true << QStringLiteral("b1");
        QTest::newRow("empty components skipped") << "" << QStringLiteral("A//B/") << true << "b1";
        QTest::newRow("relative from cursor") << "/Root/A" << QStringLiteral("B") << true << "b1";
        QTest::newRow("relative missing fails") << "/Root/A" << QStringLiteral("Other") << false << "a";
        QTest::newRow("parent component") << "/Root/A" << QStringLiteral("../Other") << true << "o";
        QTest::newRow("dot component") << "/Root/A" << QStringLiteral("./B") << true << "b1";
        QTest::newRow("trimmed") << QStringLiteral("") << QStringLiteral(" A/B ") << true << QStringLiteral("b1");
        QTest::newRow("case matters") << QStringLiteral("") << QStringLiteral("a/b") << false << QStringLiteral("root");
    }

    void goToPath()
    {
        QFETCH(QString, start);
        QFETCH(QString, path);

        XmlFiler filer;
        QVERIFY(filer.Parse(QString::fromLatin1(kNavigationDocument)));
        QVERIFY(filer.GoToPath(start));
        QTEST(filer.GoToPath(path), "found");
        QTEST(filer.ReadString(QStringLiteral("id")), "expectedId");
    }

    void siblingsParentsAndRememberedPositions()
    {
        XmlFiler filer;
        QVERIFY(filer.Parse(QString::fromLatin1(kNavigationDocument)));
        QVERIFY(!filer.GoToParent());
        QVERIFY(!filer.GoToNextSibling());
        QVERIFY(!filer.RestorePosition());

        filer.RememberPosition();
        QVERIFY(filer.GoToFirstChild());
        QCOMPARE(filer.GetElementName(), QStringLiteral("A"));
        filer.RememberPosition();
        QVERIFY(filer.GoToFirstChild(QStringLiteral("B")));
        QVERIFY(filer.GoToNextSibling());
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("b2"));
        QVERIFY(!filer.GoToNextSibling());
        QVERIFY(!filer.GoToFirstChild(QStringLiteral("Missing")));
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("b2"));
        QVERIFY(filer.GoToFirstChild());
        QVERIFY(!filer.GoToFirstChild());
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("c"));
        QVERIFY(filer.GoToParent());
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("b2"));

        QVERIFY(filer.RestorePosition());
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("a"));
        QVERIFY(filer.GoToNextSibling(QStringLiteral("Other")));
        QVERIFY(filer.RestorePosition());
        QCOMPARE(filer.ReadString(QStringLiteral("id")), QStringLiteral("root"));
        QVERIFY(!filer.RestorePosition());
    }

    void rootScopes()
    {
        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root><Page n=\"1\"><Group><Item/></Group></Page></Root>")));
        QVERIFY(filer.GoToPath(QStringLiteral("Page/Group")));
        filer.RememberPosition();
        QDomDocument other;
        QVERIFY(other.setContent(QStringLiteral("<Doc><Node n=\"2\"><Child/></Node></Doc>")));
        {
            const XmlFiler::RootScope page(filer, filer.GetDocument().documentElement().firstChildElement());
            QCOMPARE(filer.GetElementName(), QStringLiteral("Page"));
            QVERIFY(!filer.GoToParent());
            QVERIFY(!filer.GoToPath(QStringLiteral("..")));
            QVERIFY(!filer.GoToPath(QStringLiteral("/Root/Page")));
            QVERIFY(filer.GoToPath(QStringLiteral("/Page/Group/Item")));
            QVERIFY(filer.GoToDocumentElement());
            QCOMPARE(filer.ReadInt(QStringLiteral("n")), 1);
            QVERIFY(!filer.RestorePosition());
            {
                // A node of another document is read in place.
                const XmlFiler::RootScope node(filer, other.documentElement().firstChildElement());
                QCOMPARE(filer.GetRootElement(), other.documentElement().firstChildElement());
                QCOMPARE(filer.ReadInt(QStringLiteral("n")), 2);
                QVERIFY(filer.GoToFirstChild(QStringLiteral("Child")));
                QVERIFY(filer.WriteInt(QStringLiteral("m"), 3));
            }
            QCOMPARE(filer.GetElementName(), QStringLiteral("Page"));
        }
        QCOMPARE(other.documentElement().firstChildElement().firstChildElement().attribute(QStringLiteral("m")),
                 QStringLiteral("3"));
        QCOMPARE(filer.GetElementName(), QStringLiteral("Group"));
        QCOMPARE(filer.GetRootElement(), filer.GetDocument().documentElement());
        QVERIFY(filer.RestorePosition());
        const XmlFiler::RootScope none(filer, QDomElement());
        QVERIFY(filer.GoToParent());
    }

    void typedReaders_data()
    {
        // The default value's type picks the reader; a null text means the attribute is absent.
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("defaultValue");
        QTest::addColumn<QVariant>("expected");

        const QVariant intDefault = QVariant(-7);
        QTest::newRow("int absent") << QString() << intDefault << intDefault;
        QTest::newRow("int empty") << "" << intDefault << intDefault;
        QTest::newRow("int malformed") << "12abc" << intDefault << intDefault;
        QTest::newRow("int") << " -42 " << intDefault << QVariant(-42);
        QTest::newRow("int hex") << "0x1F" << intDefault << QVariant(31);
        QTest::newRow("int leading zero is decimal") << "010" << intDefault << QVariant(10);
        QTest::newRow("int overflow") << "4294967296" << intDefault << intDefault;
        QTest::newRow("uint negative") << "-1" << QVariant(5u) << QVariant(5u);
        QTest::newRow("uint max") << "4294967295" << QVariant(5u) << QVariant(4294967295u);
        QTest::newRow("long") << "-123456" << QVariant::fromValue(1L) << QVariant::fromValue(-123456L);
        QTest::newRow("ulong") << "123456" << QVariant::fromValue(1UL) << QVariant::fromValue(123456UL);
        QTest::newRow("longlong") << "-9223372036854775808" << QVariant(1LL)
                                  << QVariant(std::numeric_limits<qlonglong>::min());
        QTest::newRow("ulonglong") << "18446744073709551615" << QVariant(1ULL)
                                   << QVariant(std::numeric_limits<qulonglong>::max());
        QTest::newRow("double") << "2.5e-3" << QVariant(1.0) << QVariant(0.0025);
        QTest::newRow("double comma is malformed") << "2,5" << QVariant(1.0) << QVariant(1.0);
        QTest::newRow("bool True") << "True" << QVariant(false) << QVariant(true);
        QTest::newRow("bool lower false") << "false" << QVariant(true) << QVariant(false);
        QTest::newRow("bool malformed") << "yes" << QVariant(true) << QVariant(true);
        const QVariant rectDefault(QRect(9, 9, 9, 9));
        QTest::newRow("rect") << "1, 2,30,40" << rectDefault << QVariant(QRect(1, 2, 30, 40));
        QTest::newRow("rect too short") << "1,2,3" << rectDefault << rectDefault;
        QTest::newRow("rect malformed part") << "1,2,x,4" << rectDefault << rectDefault;
        QTest::newRow("size") << "640,480" << QVariant(QSize()) << QVariant(QSize(640, 480));
        QTest::newRow("point") << "-3,4" << QVariant(QPoint()) << QVariant(QPoint(-3, 4));
        QTest::newRow("point too long") << "1,2,3" << QVariant(QPoint(7, 7)) << QVariant(QPoint(7, 7));
        const QVariant fallback(QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC));
        QTest::newRow("datetime utc") << "2024-02-29T13:14:15.678Z" << fallback
                                      << QVariant(QDateTime(QDate(2024, 2, 29), QTime(13, 14, 15, 678), Qt::UTC));
        QTest::newRow("datetime offset") << "2024-02-29T15:14:15+02:00" << fallback
                                         << QVariant(QDateTime(QDate(2024, 2, 29), QTime(13, 14, 15), Qt::UTC));
        QTest::newRow("datetime malformed") << "yesterday" << fallback << fallback;
        const QVariant stringDefault(QStringLiteral("def"));
        QTest::newRow("string absent") << QString() << stringDefault << stringDefault;
        QTest::newRow("string empty is a value") << "" << stringDefault << QVariant(QString());
    }

    void typedReaders()
    {
        QFETCH(QString, text);
        QFETCH(QVariant, defaultValue);

        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root/>")));
        if (!text.isNull())
            QVERIFY(filer.WriteString(QStringLiteral("v"), text));
        QTEST(readTyped(filer, QStringLiteral("v"), defaultValue), "expected");
    }

    void enumsAndFlags_data()
    {
        QTest::addColumn<bool>("flags");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");

        QTest::newRow("flags double comma") << true << "AlignLeft,,AlignTop" << 0x21;
        QTest::newRow("flags any case with blanks") << true << "alignleft, ALIGNTOP" << 0x21;
        QTest::newRow("flags combined word") << true << "AlignCenter" << 0x84;
        QTest::newRow("flags unknown word") << true << "AlignNowhere" << 0x82;
        QTest::newRow("flags unknown word ignored") << true << "AlignNowhere,AlignBottom" << 0x40;
        QTest::newRow("flags empty") << true << "" << 0x82;
        QTest::newRow("flags commas only") << true << ",," << 0x82;
        QTest::newRow("enum any case") << false << "fullrow" << 2;
        QTest::newRow("enum unknown") << false << "Right" << 1;
        QTest::newRow("enum empty") << false << "" << 1;
        QTest::newRow("enum list is not a word") << false << "Left,Control" << 1;
    }

    void enumsAndFlags()
    {
        QFETCH(bool, flags);
        QFETCH(QString, text);

        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root/>")));
        QVERIFY(filer.WriteString(QStringLiteral("v"), text));
        const int actual = flags ? filer.ReadFlags(QStringLiteral("v"), alignmentTable(), 0x82)
                                 : filer.ReadEnum(QStringLiteral("v"), placementTable(), 1);
        QTEST(actual, "expected");
    }

    void translation_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("withTable");
        QTest::addColumn<bool>("translate");
        QTest::addColumn<QString>("expected");

        QTest::newRow("id without table") << "tr(General)" << false << true << "General";
        QTest::newRow("blanks and case") << "  TR ( General )  " << false << true << "General";
        QTest::newRow("table text") << "tr(General)" << true << true << "Allgemein";
        QTest::newRow("table text, blanks") << "tr( General )" << true << true << "Allgemein";
        QTest::newRow("id missing from table") << "tr(Other)" << true << true << "Other";
        QTest::newRow("translation off") << "tr(General)" << true << false << "tr(General)";
        QTest::newRow("plain text") << "General" << true << true << "General";
        QTest::newRow("no closing parenthesis") << "tr(General" << true << true << "tr(General";
        QTest::newRow("prefix before tr") << "xtr(General)" << true << true << "xtr(General)";
        QTest::newRow("text after parenthesis") << "tr(General) x" << true << true << "tr(General) x";
    }

    void translation()
    {
        QFETCH(QString, text);
        QFETCH(bool, withTable);
        QFETCH(bool, translate);
        QFETCH(QString, expected);

        TranslationTable table(QStringLiteral("Pages"));
        table.Insert(QStringLiteral("General"), QStringLiteral("Allgemein"));
        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root/>")));
        QVERIFY(filer.WriteString(QStringLiteral("Label"), text));
        if (withTable)
            filer.SetTranslationTable(&table);
        filer.SetTranslate(translate);
        QCOMPARE(filer.ReadString(QStringLiteral("Label")), expected);
        QCOMPARE(filer.Translate(text), expected);
    }

    void writersRoundTripThroughFile()
    {
        const QString path = mDir.filePath(QStringLiteral("roundtrip.xml"));
        const QDateTime utc(QDate(2023, 7, 1), QTime(23, 59, 58, 999), Qt::UTC);
        const QDateTime offset(QDate(2023, 7, 1), QTime(8, 0), QTimeZone(-5 * 3600));
        const QDateTime local(QDate(2023, 1, 15), QTime(12, 30, 0, 5), Qt::LocalTime);
        {
            XmlFiler filer;
            QVERIFY(filer.OpenOrCreate(path));
            QVERIFY(filer.CreatePath(QStringLiteral("/Root/Settings/Window")));
            QVERIFY(filer.WriteString(QStringLiteral("s"), QStringLiteral("a \"quoted\" <text> & 'more'\n\ttab")));
            QVERIFY(filer.WriteInt(QStringLiteral("i"), std::numeric_limits<int>::min()));
            QVERIFY(filer.WriteUInt(QStringLiteral("u"), std::numeric_limits<uint>::max()));
            QVERIFY(filer.WriteLong(QStringLiteral("l"), std::numeric_limits<long>::min()));
            QVERIFY(filer.WriteULong(QStringLiteral("ul"), std::numeric_limits<ulong>::max()));
            QVERIFY(filer.WriteLongLong(QStringLiteral("ll"), std::numeric_limits<qlonglong>::min()));
            QVERIFY(filer.WriteULongLong(QStringLiteral("ull"), std::numeric_limits<qulonglong>::max()));
            QVERIFY(filer.WriteDouble(QStringLiteral("d1"), 0.1));
            QVERIFY(filer.WriteDouble(QStringLiteral("d2"), -1.7976931348623157e308));
            QVERIFY(filer.WriteDouble(QStringLiteral("d3"), 5e-324));
            QVERIFY(filer.WriteBool(QStringLiteral("t"), true));
            QVERIFY(filer.WriteBool(QStringLiteral("f"), false));
            QVERIFY(filer.WriteDateTime(QStringLiteral("utc"), utc));
            QVERIFY(filer.WriteDateTime(QStringLiteral("offset"), offset));
            QVERIFY(filer.WriteDateTime(QStringLiteral("local"), local));
            QVERIFY(filer.WriteRect(QStringLiteral("r"), QRect(-10, 20, 300, 400)));
            QVERIFY(filer.WriteSize(QStringLiteral("sz"), QSize(1920, 1080)));
            QVERIFY(filer.WritePoint(QStringLiteral("p"), QPoint(-5, 6)));
            QVERIFY(filer.WriteEnum(QStringLiteral("e"), placementTable(), 3));
            QVERIFY(!filer.WriteEnum(QStringLiteral("e2"), placementTable(), 42));
            QVERIFY(filer.WriteFlags(QStringLiteral("fl"), alignmentTable(), 0x84 | 0x20));
            QVERIFY(!filer.WriteFlags(QStringLiteral("fl2"), alignmentTable(), 0x100));
            QVERIFY(filer.IsModified());
            QVERIFY(filer.Save());
            QVERIFY(!filer.IsModified());
            QVERIFY(filer.GetLastSaveTime().isValid());
        }
        XmlFiler filer;
        QVERIFY(filer.Open(path));
        QCOMPARE(filer.GetFileName(), path);
        {
            XmlFiler parsed;
            QVERIFY(parsed.Open(path));
            QVERIFY(parsed.Parse(QStringLiteral("<Other/>")));
            QVERIFY(parsed.GetFileName().isEmpty());
            QVERIFY(!parsed.Save());
        }
        QVERIFY(filer.GoToPath(QStringLiteral("Settings/Window")));
        QCOMPARE(filer.ReadString(QStringLiteral("s")), QStringLiteral("a \"quoted\" <text> & 'more'\n\ttab"));
        QCOMPARE(filer.ReadInt(QStringLiteral("i")), std::numeric_limits<int>::min());
        QCOMPARE(filer.ReadUInt(QStringLiteral("u")), std::numeric_limits<uint>::max());
        QCOMPARE(filer.ReadLong(QStringLiteral("l")), std::numeric_limits<long>::min());
        QCOMPARE(filer.ReadULong(QStringLiteral("ul")), std::numeric_limits<ulong>::max());
        QCOMPARE(filer.ReadLongLong(QStringLiteral("ll")), std::numeric_limits<qlonglong>::min());
        QCOMPARE(filer.ReadULongLong(QStringLiteral("ull")), std::numeric_limits<qulonglong>::max());
        QCOMPARE(filer.ReadDouble(QStringLiteral("d1")), 0.1);
        QCOMPARE(filer.ReadDouble(QStringLiteral("d2")), -1.7976931348623157e308);
        QCOMPARE(filer.ReadDouble(QStringLiteral("d3")), 5e-324);
        QCOMPARE(filer.ReadBool(QStringLiteral("t"), false), true);
        QCOMPARE(filer.ReadBool(QStringLiteral("f"), true), false);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("utc")), utc);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("utc")).timeSpec(), Qt::UTC);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("offset")), offset);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("offset")).offsetFromUtc(), -5 * 3600);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("local")), local);
        QCOMPARE(filer.ReadDateTime(QStringLiteral("local")).timeSpec(), Qt::LocalTime);
        QCOMPARE(filer.ReadRect(QStringLiteral("r")), QRect(-10, 20, 300, 400));
        QCOMPARE(filer.ReadString(QStringLiteral("r")), QStringLiteral("-10,20,300,400"));
        QCOMPARE(filer.ReadSize(QStringLiteral("sz")), QSize(1920, 1080));
        QCOMPARE(filer.ReadString(QStringLiteral("sz")), QStringLiteral("1920,1080"));
        QCOMPARE(filer.ReadPoint(QStringLiteral("p")), QPoint(-5, 6));
        QCOMPARE(filer.ReadString(QStringLiteral("t")), QStringLiteral("True"));
        QCOMPARE(filer.ReadString(QStringLiteral("f")), QStringLiteral("False"));
        QCOMPARE(filer.ReadString(QStringLiteral("e")), QStringLiteral("Control"));
        QCOMPARE(filer.ReadEnum(QStringLiteral("e"), placementTable(), 0), 3);
        QVERIFY(!filer.HasAttribute(QStringLiteral("e2")));
        QCOMPARE(filer.ReadString(QStringLiteral("fl")), QStringLiteral("AlignCenter,AlignTop"));
        QCOMPARE(filer.ReadFlags(QStringLiteral("fl"), alignmentTable(), 0), 0xA4);
        QVERIFY(!filer.HasAttribute(QStringLiteral("fl2")));
        QVERIFY(!filer.IsModified());
    }

    void elementContentRoundTrips()
    {
        const QString path = mDir.filePath(QStringLiteral("content.xml"));
        QByteArray binary;
        for (int i = 0; i < 256; ++i)
            binary.append(char(i));
        const QString cdata = QStringLiteral("if (a < b && c]]>d) { }");
        {
            XmlFiler filer;
            QVERIFY(filer.OpenOrCreate(path));
            QVERIFY(filer.CreateElement(QStringLiteral("Text")));
            QVERIFY(filer.WriteElementText(QStringLiteral("first")));
            QVERIFY(filer.WriteElementText(QStringLiteral("plain <&> text")));
            QVERIFY(filer.GoToParent());
            QVERIFY(filer.CreateElement(QStringLiteral("Script")));
            QVERIFY(filer.WriteElementText(cdata, true));
            QVERIFY(filer.GoToParent());
            QVERIFY(filer.CreateElement(QStringLiteral("Blob")));
            QVERIFY(filer.WriteBinary(binary));
            QVERIFY(filer.Save());
        }
        XmlFiler filer;
        QVERIFY(filer.Open(path));
        QVERIFY(filer.GoToFirstChild(QStringLiteral("Text")));
        QCOMPARE(filer.ReadElementText(), QStringLiteral("plain <&> text"));
        QVERIFY(filer.GoToNextSibling(QStringLiteral("Script")));
        QCOMPARE(filer.ReadElementText(), cdata);
        QVERIFY(filer.GoToNextSibling(QStringLiteral("Blob")));
        QCOMPARE(filer.ReadBinary(), binary);

        QVERIFY(filer.Parse(QStringLiteral("<Root><Page><A x=\"1\"/>text<B/></Page></Root>")));
        QVERIFY(filer.GoToFirstChild());
        const QString inner = filer.ReadInnerXml();
        QVERIFY(inner.contains(QStringLiteral("<A x=\"1\"/>")));
        QVERIFY(inner.contains(QStringLiteral("text")));
        QVERIFY(inner.contains(QStringLiteral("<B/>")));
        XmlFiler reparsed;
        QVERIFY(reparsed.Parse(QStringLiteral("<W>") + inner + QStringLiteral("</W>")));
        QCOMPARE(reparsed.GetChildElementCount(), 2);
    }

    void createPathAndRemove()
    {
        XmlFiler filer;
        QVERIFY(filer.CreatePath(QStringLiteral("/Settings/Recent/Files")));
        QCOMPARE(filer.GetElementName(), QStringLiteral("Files"));
        QVERIFY(filer.GoToDocumentElement());
        QCOMPARE(filer.GetElementName(), QStringLiteral("Settings"));
        QVERIFY(!filer.CreatePath(QStringLiteral("/Other/Recent")));
        QVERIFY(!filer.CreatePath(QStringLiteral("Bad Name/X")));
        QVERIFY(!filer.CreateElement(QStringLiteral("1st")));
        QCOMPARE(filer.GetElementName(), QStringLiteral("Settings"));

        // An existing component is reused, not duplicated.
        QVERIFY(filer.CreatePath(QStringLiteral("Recent\\Files")));
        QVERIFY(filer.GoToDocumentElement());
        QVERIFY(filer.GoToFirstChild());
        QCOMPARE(filer.GetChildElementCount(), 1);

        QVERIFY(filer.CreateElement(QStringLiteral("Files")));
        QVERIFY(filer.GoToParent());
        QCOMPARE(filer.GetChildElementCount(), 2);
        QVERIFY(filer.WriteInt(QStringLiteral("n"), 1));
        QVERIFY(filer.RemoveAttribute(QStringLiteral("n")));
        QVERIFY(!filer.RemoveAttribute(QStringLiteral("n")));
        QCOMPARE(filer.RemoveChildren(QStringLiteral("Files")), 2);
        QCOMPARE(filer.GetChildElementCount(), 0);

        QVERIFY(filer.RemoveCurrentElement());
        QCOMPARE(filer.GetElementName(), QStringLiteral("Settings"));
        QCOMPARE(filer.GetChildElementCount(), 0);
        QVERIFY(filer.RemoveCurrentElement());
        QVERIFY(filer.ToString().isEmpty());
        QVERIFY(!filer.GoToDocumentElement());
    }

    void fragmentsInAndOut()
    {
        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root><Existing/></Root>")));
        filer.SetModified(false);
        QVERIFY(!filer.InsertFragment(QStringLiteral("<Broken>")));
        QVERIFY(!filer.IsModified());
        QVERIFY(filer.InsertFragment(QStringLiteral("<A v=\"1\"/><B LabelColumnWidth=\"90\"><C/></B>")));
        QVERIFY(filer.IsModified());
        QCOMPARE(filer.GetChildElementCount(), 3);
        QVERIFY(filer.GoToPath(QStringLiteral("/Root/A")));
        QCOMPARE(filer.ReadInt(QStringLiteral("v")), 1);

        // The outer XML is the element with its whole subtree.
        QVERIFY(filer.GoToPath(QStringLiteral("/Root/B")));
        XmlFiler inner;
        QVERIFY(inner.Parse(filer.ReadOuterXml()));
        QCOMPARE(inner.GetElementName(), QStringLiteral("B"));
        QCOMPARE(inner.ReadInt(QStringLiteral("LabelColumnWidth")), 90);
        QVERIFY(inner.GoToFirstChild(QStringLiteral("C")));
    }

    void savingKeepsEveryCharacter_data()
    {
        QTest::addColumn<QString>("declaration");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("expectedBytes");
        QTest::addColumn<QString>("expectedEncoding");

        QTest::newRow("latin-1 text in latin-1")
            << "ISO-8859-1" << QString::fromUtf8("caf\u00e9") << QByteArray("caf\xe9") << "ISO-8859-1";
        QTest::newRow("euro sign in latin-1")
            << "ISO-8859-1" << QString::fromUtf8("5 \u20ac") << QByteArray("5 \xe2\x82\xac") << "UTF-8";
        QTest::newRow("unknown encoding")
            << "x-no-such-encoding" << QString::fromUtf8("\u00e9") << QByteArray("\xc3\xa9") << "UTF-8";
        QTest::newRow("utf-8") << "UTF-8" << QString::fromUtf8("\u0436\u20ac") << QByteArray("\xd0\xb6\xe2\x82\xac")
                               << "UTF-8";
    }

    void savingKeepsEveryCharacter()
    {
        QFETCH(QString, declaration);
        QFETCH(QString, text);
        QFETCH(QByteArray, expectedBytes);
        QFETCH(QString, expectedEncoding);

        const QString path = mDir.filePath(QStringLiteral("encoding.xml"));
        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?><Root/>").arg(declaration)));
        QVERIFY(filer.WriteString(QStringLiteral("Text"), text));
        if (declaration.startsWith(QLatin1String("x-")))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Unsupported encoding")));
        QVERIFY(filer.Save(path));
        const QByteArray bytes = Probe::ReadFile(path);
        QVERIFY2(bytes.contains(expectedBytes), bytes.constData());
        const QRegularExpression encoding(QStringLiteral("^<\\?xml [^>]*encoding=[\"']%1[\"']").arg(expectedEncoding));
        QVERIFY2(encoding.match(QString::fromLatin1(bytes)).hasMatch(), bytes.constData());

        XmlFiler reopened;
        QVERIFY(reopened.Open(path));
        QCOMPARE(reopened.ReadString(QStringLiteral("Text")), text);
    }

    void openOrCreateAndSave()
    {
        // Nothing to save, or nowhere to save it: no file comes into being.
        const QString emptyDocument = mDir.filePath(QStringLiteral("empty.xml"));
        XmlFiler unsaved;
        QVERIFY(!unsaved.Save(emptyDocument));
        QVERIFY(!QFile::exists(emptyDocument));
        QVERIFY(unsaved.Parse(QStringLiteral("<Root/>")));
        QVERIFY(!unsaved.Save(mDir.filePath(QStringLiteral("no/such/folder/file.xml"))));
        QVERIFY(!unsaved.Save());

        const QString path = mDir.filePath(QStringLiteral("created.xml"));
        XmlFiler filer;
        QVERIFY(filer.OpenOrCreate(path));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(filer.GetElementName(), QStringLiteral("Root"));
        QVERIFY(filer.ToString().startsWith(QStringLiteral("<?xml version=\"1.0\"?>")));
        QVERIFY(filer.SaveIfModified());
        QVERIFY(QFile::exists(path));
        QVERIFY(filer.GetLastSaveTime().isValid());
        QVERIFY(!filer.IsModified());
        // Nothing changed: the file isn't touched.
        QVERIFY(QFile::remove(path));
        QVERIFY(filer.SaveIfModified());
        QVERIFY(!QFile::exists(path));
        QVERIFY(filer.WriteInt(QStringLiteral("Count"), 3));
        QVERIFY(filer.IsModified());
        QVERIFY(filer.SaveIfModified());
        QVERIFY(!filer.IsModified());
        XmlFiler reopened;
        QVERIFY(reopened.OpenOrCreate(path));
        QVERIFY(!reopened.IsModified());
        QCOMPARE(reopened.ReadInt(QStringLiteral("Count")), 3);
        QCOMPARE(reopened.ToString().count(QStringLiteral("<?xml")), 1);

        // An empty file is a settings file with nothing in it yet.
        const QString emptyPath = mDir.filePath(QStringLiteral("zero.xml"));
        QVERIFY(Probe::WriteFile(emptyPath, QByteArray()));
        XmlFiler fromEmpty;
        QVERIFY(fromEmpty.OpenOrCreate(emptyPath));
        QCOMPARE(fromEmpty.GetElementName(), QStringLiteral("Root"));
        QCOMPARE(fromEmpty.GetFileName(), emptyPath);
    }

    void killedSaveNeverTruncatesFile()
    {
        const QString path = mDir.filePath(QStringLiteral("killed.xml"));
        XmlFiler initial;
        QVERIFY(initial.Parse(versionedDocument(1)));
        QVERIFY(initial.Save(path));

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(kSaveChildVariable), path);
        for (int round = 0; round < 20; ++round) {
            QProcess child;
            child.setProcessEnvironment(environment);
            child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("openAndParseFailures")});
            QVERIFY(child.waitForStarted());
            // Let it get into its loop, then kill it at a random point of a save.
            QTest::qWait(150 + int(QRandomGenerator::global()->bounded(100)));
            child.kill();
            QVERIFY(child.waitForFinished());

            XmlFiler filer;
            QVERIFY2(filer.Open(path), qPrintable(QStringLiteral("round %1").arg(round)));
            const int version = filer.ReadInt(QStringLiteral("version"));
            QVERIFY(version == 1 || version == 2);
            QCOMPARE(filer.GetChildElementCount(), filer.ReadInt(QStringLiteral("count")));
        }
    }

    void readOnlyFolderFailsInsteadOfWritingInPlace()
    {
#ifndef Q_OS_UNIX
        QSKIP("Folder permissions are tested on Unix only.");
#else
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("readonly"));
        QVERIFY(QDir().mkpath(folder));
        const QString path = folder + QStringLiteral("/settings.xml");
        const QByteArray original = "<Root keep=\"1\"/>";
        QVERIFY(Probe::WriteFile(path, original));
        // The file may be written, the folder not: no temporary file beside it.
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0666), 0);
        QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
        QCOMPARE(::chmod(QFile::encodeName(dir.path()).constData(), 0755), 0);
        const auto unlock = qScopeGuard([&] { ::chmod(QFile::encodeName(folder).constData(), 0755); });
        if (::geteuid() == 0) {
            // Root writes into any folder: the save runs in a child without its rights.
            QProcess child;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QString::fromLatin1(kUnprivilegedVariable), path);
            child.setProcessEnvironment(environment);
            child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("openAndParseFailures")});
            QVERIFY(child.waitForFinished(60000));
            QCOMPARE(child.exitCode(), 0);
        } else {
            XmlFiler filer;
            QVERIFY(filer.OpenOrCreate(path));
            QVERIFY(filer.WriteInt(QStringLiteral("changed"), 1));
            QVERIFY(!filer.Save());
        }
        QCOMPARE(Probe::ReadFile(path), original);
#endif
    }

    void hostileFiles_data()
    {
        // Each input is written to a file; "special" makes the path something
        // that is no regular file instead.
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("special");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("updatable");
        QTest::addColumn<QString>("diagnostic");

        QTest::newRow("malformed") << QByteArray("<Root><Open></Root>") << "" << false << false << "";
        QTest::newRow("nesting at the limit") << nested(XmlFiler::kMaxDepth) << "" << true << true << "";
        QTest::newRow("nesting one level beyond")
            << nested(XmlFiler::kMaxDepth + 1) << "" << false << false << "deeper than 256 levels";
        QTest::newRow("nesting 100000 levels") << nested(100000) << "" << false << false << "deeper than 256 levels";
        QTest::newRow("attributes at the limit")
            << withAttributes(XmlFiler::kMaxAttributes) << "" << true << true << "";
        QTest::newRow("attributes one beyond")
            << withAttributes(XmlFiler::kMaxAttributes + 1) << "" << false << false << "more than 256 attributes";
        QTest::newRow("200000 attributes")
            << withAttributes(200000) << "" << false << false << "more than 256 attributes";
        QStringEncoder utf16(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
        QTest::newRow("attributes beyond, in UTF-16")
            << QByteArray(utf16.encode(QString::fromLatin1(withAttributes(300)))) << "" << false << false
            << "more than 256 attributes";
        QTest::newRow("too many nodes") << "<R>" + QByteArray("<a/>").repeated(XmlFiler::kMaxNodes) + "</R>"
                                        << "" << false << false << "more than 500000 nodes";
        QTest::newRow("larger than the limit")
            << "<Root/>" + QByteArray(int(XmlFiler::kMaxFileSize) - 6, ' ') << "" << false << false << "larger than";
        QTest::newRow("entity expansion")
            << QByteArray("<!DOCTYPE R [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                          "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
                          "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'><!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;'>"
                          "]><R>&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;</R>")
            << "" << false << false << "";
        QTest::newRow("instruction whose target is no name")
            << QByteArray("<?$?><Root/>") << "" << true << false << "would not be saved back";
        QTest::newRow("instruction before text")
            << QByteArray("<Root><?pi?>x</Root>") << "" << true << false << "would not be saved back";
        QTest::newRow("comments and instructions")
            << QByteArray("<?xml version=\"1.0\"?><!--c--><?style a?><Root><!-- in --><A/><?pi d?></Root><!--end-->")
            << "" << true << true << "";
        QTest::newRow("cdata and mixed content")
            << QByteArray("<Root>a<![CDATA[ <b> ]]>c<B>d</B> tail <![CDATA[]]></Root>") << "" << true << true << "";
        QTest::newRow("doctype") << QByteArray("<!DOCTYPE Root SYSTEM \"root.dtd\"><Root/>") << "" << true << true
                                 << "";
        QTest::newRow("odd whitespace")
            << QByteArray("<Root a=\"x&#10;&#9;y&#13;\" >\n\t <A> t&#13;ext </A>\r\n<B\n/></Root >\n\n") << "" << true
            << true << "";
        QTest::newRow("latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><Root a='\xe9'/>") << ""
                                 << true << true << "";
        QTest::newRow("folder") << QByteArray() << "folder" << false << false << "Not a regular file";
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << QByteArray() << "fifo" << false << false << "Not a regular file";
        QTest::newRow("device") << QByteArray() << "device" << false << false << "Not a regular file";
#endif
    }

    void hostileFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, special);
        QFETCH(bool, opens);
        QFETCH(bool, updatable);
        QFETCH(QString, diagnostic);

        QTemporaryDir dir;
        const QString path = Probe::HostileFile(dir.filePath(QStringLiteral("hostile.xml")), special, content);
        QVERIFY(!path.isEmpty());

        Diagnostics diagnostics;
        XmlFiler reader;
        QCOMPARE(reader.Open(path), opens);
        QCOMPARE(reader.GoToDocumentElement(), opens);
        XmlFiler updater;
        QCOMPARE(updater.OpenOrCreate(path), updatable);
        if (!diagnostic.isEmpty())
            QVERIFY2(diagnostics.Contains(path, diagnostic), qPrintable(diagnostics.texts.join(QLatin1Char('\n'))));
        if (!special.isEmpty())
            return;
        if (!updatable) {
            // Refused files are never written over.
            QVERIFY(updater.SaveIfModified());
            QCOMPARE(Probe::ReadFile(path), content);
            return;
        }
        // What opens saves, and reads back as it was.
        QVERIFY(updater.CreateElement(QStringLiteral("Probe")));
        const QString expected = canonical(updater.GetDocument());
        QVERIFY(updater.Save());
        XmlFiler reopened;
        QVERIFY(reopened.Open(path));
        QCOMPARE(canonical(reopened.GetDocument()), expected);
    }

    void saveRefusesWhatWouldNotReadBack_data()
    {
        QTest::addColumn<int>("fault");
        QTest::newRow("control character") << 0;
        QTest::newRow("comment holding two dashes") << 1;
        QTest::newRow("tag that is no name") << 2;
        QTest::newRow("nesting beyond the limit") << 3;
    }

    void saveRefusesWhatWouldNotReadBack()
    {
        QFETCH(int, fault);
        const QString path = mDir.filePath(QStringLiteral("refused.xml"));
        const QByteArray original = "<Root keep=\"1\"/>";
        QVERIFY(Probe::WriteFile(path, original));
        XmlFiler filer;
        QVERIFY(filer.OpenOrCreate(path));
        QDomDocument document = filer.GetDocument();
        switch (fault) {
        case 0:
            QVERIFY(filer.WriteString(QStringLiteral("v"), QString(QChar(1))));
            break;
        case 1:
            document.documentElement().appendChild(document.createComment(QStringLiteral("a--b")));
            break;
        case 2:
            document.documentElement().appendChild(document.createElement(QStringLiteral("Bad Name")));
            break;
        case 3:
            QVERIFY(filer.CreatePath(QStringLiteral("A/").repeated(XmlFiler::kMaxDepth)));
            QVERIFY(filer.ToString().isEmpty());
            break;
        }
        Diagnostics diagnostics;
        QVERIFY(!filer.Save());
        QVERIFY(diagnostics.Contains(path, QStringLiteral("Failed to save")));
        QCOMPARE(Probe::ReadFile(path), original);
    }

    void twoFilersKeepEachOthersChanges()
    {
        const QString path = mDir.filePath(QStringLiteral("shared.xml"));
        QVERIFY(Probe::WriteFile(path, "<Root><Recent><File name=\"old.txt\"/></Recent><Gone/></Root>"));
        XmlFiler first;
        XmlFiler second;
        QVERIFY(first.OpenOrCreate(path));
        QVERIFY(second.OpenOrCreate(path));

        QVERIFY(first.CreatePath(QStringLiteral("Window")));
        QVERIFY(first.WriteInt(QStringLiteral("x"), 1));
        QVERIFY(first.GoToPath(QStringLiteral("/Root/Recent")));
        QVERIFY(first.CreateElement(QStringLiteral("File")));
        QVERIFY(first.WriteString(QStringLiteral("name"), QStringLiteral("first.txt")));
        QVERIFY(first.GoToPath(QStringLiteral("/Root/Gone")));
        QVERIFY(first.RemoveCurrentElement());

        QVERIFY(second.CreatePath(QStringLiteral("Window")));
        QVERIFY(second.WriteInt(QStringLiteral("y"), 2));
        QVERIFY(second.GoToPath(QStringLiteral("/Root/Recent")));
        QVERIFY(second.CreateElement(QStringLiteral("File")));
        QVERIFY(second.WriteString(QStringLiteral("name"), QStringLiteral("second.txt")));
        QVERIFY(second.InsertFragment(QStringLiteral("<Size value=\"3\"/>")));

        QVERIFY(first.Save());
        // A lock left behind by a process that is gone does not stop the save.
        QVERIFY(Probe::WriteFile(path + QStringLiteral(".lock"),
                                 "2147483646\nghost\n" + QSysInfo::machineHostName().toUtf8() + '\n' +
                                     QSysInfo::machineUniqueId() + '\n' + QSysInfo::bootUniqueId() + '\n'));
        QVERIFY(second.Save());
        QVERIFY(!QFile::exists(path + QStringLiteral(".lock")));
        // The cursor followed its element into the merged document.
        QCOMPARE(second.ReadString(QStringLiteral("name")), QStringLiteral("second.txt"));
        QVERIFY(second.WriteBool(QStringLiteral("open"), true));
        QVERIFY(second.Save());
        QVERIFY(first.GoToPath(QStringLiteral("/Root/Window")));
        QVERIFY(first.WriteInt(QStringLiteral("x"), 5));
        QVERIFY(first.Save());

        XmlFiler result;
        QVERIFY(result.Open(path));
        QVERIFY(result.GoToPath(QStringLiteral("Window")));
        QCOMPARE(result.ReadInt(QStringLiteral("x")), 5);
        QCOMPARE(result.ReadInt(QStringLiteral("y")), 2);
        QVERIFY(!result.GoToPath(QStringLiteral("/Root/Gone")));
        QVERIFY(result.GoToPath(QStringLiteral("/Root/Recent/File")));
        QStringList names;
        do {
            names.append(result.ReadString(QStringLiteral("name")));
        } while (result.GoToNextSibling(QStringLiteral("File")));
        QCOMPARE(names,
                 (QStringList{QStringLiteral("old.txt"), QStringLiteral("first.txt"), QStringLiteral("second.txt")}));
        QVERIFY(result.ReadBool(QStringLiteral("open")));
        QVERIFY(result.GoToFirstChild(QStringLiteral("Size")));
        QCOMPARE(result.ReadInt(QStringLiteral("value")), 3);
    }

private:
    QTemporaryDir mDir;
};

QTEST_MAIN(tst_XmlFiler)
#include "tst_xmlfiler.moc"
