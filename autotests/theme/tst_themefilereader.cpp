#include <KvUICore/theme/ThemeFileReader_p.h>

#include <QBuffer>
#include <QColor>
#include <QLinearGradient>
#include <QSize>
#include <QTest>

using namespace Kavrel::UICore::Internal;

namespace {

struct ReadResult
{
    bool ok = false;
    QString error;
    ThemeValueTable table;
    ~ReadResult() { qDeleteAll(table); }
};

// Reads xml into a fresh table; references resolve against the same table.
void read(const QByteArray& xml, ReadResult& result)
{
    QBuffer buffer;
    buffer.setData(xml);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    ThemeValueTable& table = result.table;
    ThemeFileReader reader(table, [&table](const QString& name) { return ThemeValueText(table.value(name)); });
    result.ok = reader.Read(&buffer);
    result.error = reader.ErrorString();
}

QByteArray xbel(const QByteArray& body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xbel>\n<xbel version=\"1.0\">" + body + "</xbel>";
}

} // namespace

class tst_ThemeFileReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colours_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QColor>("expected");

        QTest::newRow("hex with alpha") << QByteArray("<hex value=\"#10203040\"/>") << QColor(0x10, 0x20, 0x30, 0x40);
        QTest::newRow("hex without alpha is opaque")
            << QByteArray("<hex value=\"#102030\"/>") << QColor(0x10, 0x20, 0x30, 255);
        QTest::newRow("rgba") << QByteArray("<rgba r=\"1\" g=\"2\" b=\"3\" a=\"4\"/>") << QColor(1, 2, 3, 4);
        QTest::newRow("rgba without a is transparent")
            << QByteArray("<rgba r=\"9\" g=\"8\" b=\"7\"/>") << QColor(9, 8, 7, 0);
        QTest::newRow("rgba text reads as zero")
            << QByteArray("<rgba r=\"red\" g=\"8\" b=\"7\" a=\"255\"/>") << QColor(0, 8, 7, 255);
        QTest::newRow("rgba reference is not expanded")
            << QByteArray("<rgba r=\"$(Twelve)\" g=\"8\" b=\"7\" a=\"255\"/>") << QColor(0, 8, 7, 255);
        QTest::newRow("hex without # is invalid") << QByteArray("<hex value=\"102030\"/>") << QColor();
        QTest::newRow("other children skipped")
            << QByteArray("<note>x</note><hex value=\"#ffffff\"/>") << QColor(Qt::white);
    }

    void colours()
    {
        QFETCH(QByteArray, element);
        ReadResult result;
        read(xbel("<Int name=\"Twelve\" value=\"12\"/><Color name=\"c\">" + element + "</Color>"), result);
        QVERIFY2(result.ok, qPrintable(result.error));
        QVERIFY(result.table.contains(QStringLiteral("c")));
        const QVariant* value = result.table.value(QStringLiteral("c"));
        QCOMPARE(value->metaType(), QMetaType::fromType<QColor>());
        QTEST(value->value<QColor>(), "expected");
    }

    void gradientTextForm()
    {
        ReadResult result;
        read(xbel("<Color name=\"g\"><rgba r=\"0\" g=\"0\" b=\"0\" a=\"255\" anchor=\"0\"/>"
                  "<rgba r=\"255\" g=\"255\" b=\"255\" a=\"255\" anchor=\"1\"/></Color>"
                  "<Color name=\"empty\"></Color>"
                  "<StyleSheet name=\"s\">x { background: $(g); }</StyleSheet>"),
             result);
        QVERIFY2(result.ok, qPrintable(result.error));
        const QVariant* gradient = result.table.value(QStringLiteral("g"));
        QCOMPARE(gradient->metaType(), QMetaType::fromType<QLinearGradient>());
        QCOMPARE(gradient->value<QLinearGradient>().stops().size(), 2);
        QVERIFY2(!result.table.contains(QStringLiteral("empty")), "a Color without colours stores nothing");
        QCOMPARE(result.table.value(QStringLiteral("s"))->toString(),
                 QStringLiteral(
                     "x { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #000000, stop:1 #ffffff ); }"));
    }

    void stringContentAndAttribute()
    {
        ReadResult result;
        read(xbel("<String name=\"content\">some <![CDATA[<text>]]></String>"
                  "<String name=\"comment\">some <!-- c -->text</String>"
                  "<String name=\"child\">a<b>x</b>c</String>"
                  "<String name=\"attribute\" value=\"attr\">ignored</String>"
                  "<String name=\"ref\" value=\"$(content)\"/>"
                  "<Int name=\"after\" value=\"1\"/>"),
             result);
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(result.table.value(QStringLiteral("content"))->toString(), QStringLiteral("some <text>"));
        // The content is the text right after the start tag: a comment or child ends it.
        QCOMPARE(result.table.value(QStringLiteral("comment"))->toString(), QStringLiteral("some "));
        QCOMPARE(result.table.value(QStringLiteral("child"))->toString(), QStringLiteral("a"));
        QCOMPARE(result.table.value(QStringLiteral("after"))->toInt(), 1);
        QCOMPARE(result.table.value(QStringLiteral("attribute"))->toString(), QStringLiteral("attr"));
        QCOMPARE(result.table.value(QStringLiteral("ref"))->toString(), QStringLiteral("$(content)"));
    }

    void numbersAndSizes()
    {
        ReadResult result;
        read(xbel("<Int name=\"Twelve\" value=\"12\"/>"
                  "<ScalableInt name=\"scaled\" value=\"$(Twelve)\"/>"
                  "<Int name=\"text\" value=\"twelve\"/>"
                  "<Size name=\"size\" width=\"$(Twelve)\" height=\"30\"/>"),
             result);
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(result.table.value(QStringLiteral("scaled"))->toInt(), 12);
        QCOMPARE(result.table.value(QStringLiteral("text"))->toInt(), 0);
        QCOMPARE(result.table.value(QStringLiteral("size"))->toSize(), QSize(12, 30));
    }

    void references_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("two in a row") << QStringLiteral("$(A)$(B)") << QStringLiteral("#ff010203#ff040506");
        QTest::newRow("empty reference stays") << QStringLiteral("a $() b") << QStringLiteral("a $() b");
        QTest::newRow("unknown name is empty") << QStringLiteral("[$(Nope)]") << QStringLiteral("[]");
        QTest::newRow("nested expansion") << QStringLiteral("<$(Outer)>") << QStringLiteral("<x #ff010203 y>");
        QTest::newRow("self reference expands once") << QStringLiteral("$(Self)") << QStringLiteral("keep $(Self)");
        QTest::newRow("integer") << QStringLiteral("$(N)px") << QStringLiteral("7px");
        QTest::newRow("up to the first parenthesis") << QStringLiteral("$(A))") << QStringLiteral("#ff010203)");
        QTest::newRow("name holding $(") << QStringLiteral("$(x$(A)") << QStringLiteral("");
        QTest::newRow("not across a line") << QStringLiteral("$(\n$(N)") << QStringLiteral("$(\n7");
        QTest::newRow("reference split by expansion") << QStringLiteral("$(Half)N)") << QStringLiteral("7");
    }

    void references()
    {
        QFETCH(QString, text);
        const QHash<QString, QVariant> values = {
            {QStringLiteral("A"), QColor(1, 2, 3)},
            {QStringLiteral("B"), QColor(4, 5, 6)},
            {QStringLiteral("Outer"), QStringLiteral("x $(A) y")},
            {QStringLiteral("Self"), QStringLiteral("keep $(Self)")},
            {QStringLiteral("N"), 7},
            {QStringLiteral("Half"), QStringLiteral("$(")},
        };
        QCOMPARE(SubstituteReferences(text,
                                      [&values](const QString& name) {
                                          const auto it = values.constFind(name);
                                          return it == values.constEnd() ? QString() : ThemeValueText(&it.value());
                                      }),
                 Substitution::Done);
        QTEST(text, "expected");
    }

    void referenceRingEnds()
    {
        const QHash<QString, QString> values = {{QStringLiteral("A"), QStringLiteral("$(B)")},
                                                {QStringLiteral("B"), QStringLiteral("$(A)")}};
        QString text = QStringLiteral("$(A)");
        QCOMPARE(SubstituteReferences(text, [&values](const QString& name) { return values.value(name); }),
                 Substitution::Done);
        QVERIFY(text == QStringLiteral("$(A)") || text == QStringLiteral("$(B)"));
    }

    void unknownElementsSkipped()
    {
        ReadResult result;
        read(xbel("<Folder name=\"f\"><Color name=\"inner\"><hex value=\"#000000\"/></Color></Folder>"
                  "<Int name=\"after\" value=\"3\"/>"),
             result);
        QVERIFY2(result.ok, qPrintable(result.error));
        QVERIFY(!result.table.contains(QStringLiteral("inner")));
        QCOMPARE(result.table.value(QStringLiteral("after"))->toInt(), 3);
    }

    void errors_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("kept");

        QTest::newRow("wrong root") << QByteArray("<theme version=\"1.0\"/>")
                                    << QStringLiteral("The file is not an XBEL version 1.0 file.") << QStringList();
        QTest::newRow("wrong version") << QByteArray("<xbel version=\"1.1\"/>")
                                       << QStringLiteral("The file is not an XBEL version 1.0 file.") << QStringList();
        QTest::newRow("hex length")
            << xbel("<Int name=\"before\" value=\"1\"/><Color name=\"c\"><hex value=\"#1020304\"/></Color>")
            << QStringLiteral("The hex format of color is invalid!") << QStringList{"before"};
        QTest::newRow("hex digits") << xbel("<Color name=\"c\"><hex value=\"#10zz30\"/></Color>")
                                    << QStringLiteral("Invalid hex format!") << QStringList();
        QTest::newRow("malformed") << QByteArray("<xbel version=\"1.0\"><Int name=\"a\" value=\"1\"/><Int name=\"b\"")
                                   << QString() << QStringList{"a"};
    }

    void errors()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, message);
        QFETCH(QStringList, kept);
        ReadResult result;
        read(xml, result);
        QVERIFY(!result.ok);
        QVERIFY(!result.error.isEmpty());
        if (!message.isEmpty())
            QCOMPARE(result.error, message);
        for (const QString& name : kept)
            QVERIFY2(result.table.contains(name), qPrintable(name));
        QVERIFY(!result.table.contains(QStringLiteral("c")));
    }

    void laterEntryReplacesEarlier()
    {
        ReadResult result;
        read(xbel("<Int name=\"x\" value=\"1\"/><String name=\"x\" value=\"two\"/>"), result);
        QVERIFY(result.ok);
        QCOMPARE(result.table.size(), 1);
        QCOMPARE(result.table.value(QStringLiteral("x"))->toString(), QStringLiteral("two"));
    }
};

QTEST_GUILESS_MAIN(tst_ThemeFileReader)
#include "tst_themefilereader.moc"
