#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

QString xliff(const QString& units)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<xliff version=\"1.2\" xmlns=\"urn:oasis:names:tc:xliff:document:1.2\">\n"
                          "<file source-language=\"en-US\" target-language=\"de-DE\" datatype=\"plaintext\" "
                          "original=\"pages\"><body>%1</body></file></xliff>\n")
        .arg(units);
}

QString unit(const QString& id, const QString& target)
{
    return QStringLiteral("<trans-unit id=\"%1\"><source>%1</source><target>%2</target></trans-unit>").arg(id, target);
}

bool writeFile(const QString& path, const QString& text)
{
    return Probe::WriteFile(path, text.toUtf8());
}

void setLocale(const QString& locale)
{
    CoreUIManager::GetInstance()->SetCurrentLocale(locale.toStdWString().c_str());
}

} // namespace

class tst_TranslationTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(mDir.isValid());
        const std::wstring folder = mDir.path().toStdWString();
        QVERIFY(CoreUIManager::GetInstance()->SetTranslatorFilesPath(folder.c_str()));
    }

    void cleanup()
    {
        TranslationTable::ClearCache();
        Internal::SetDiagnosticHook({});
    }

    void readsUnitsOfBothVersions()
    {
        const QString path = mDir.filePath(QStringLiteral("units.xlf"));
        QVERIFY(writeFile(
            path,
            xliff(unit(QStringLiteral("General"), QStringLiteral("Allgemein")) + QStringLiteral("<group id=\"g\">") +
                  unit(QStringLiteral("Width"), QStringLiteral("Breite")) + QStringLiteral("</group>") +
                  QStringLiteral("<trans-unit id=\"Untranslated\"><source>Untranslated</source></trans-unit>") +
                  QStringLiteral("<trans-unit id=\"Empty\"><source>Empty</source><target/></trans-unit>") +
                  QStringLiteral("<trans-unit id=\"Fixed\" translate=\"no\"><source>Fixed</source>"
                                 "<target>Fest</target></trans-unit>") +
                  QStringLiteral("<trans-unit id=\"Height\"><source>Height</source><target>Höhe</target>"
                                 "<alt-trans><target>Höhenmaß</target></alt-trans></trans-unit>") +
                  QStringLiteral("<trans-unit id=\"u7\" resname=\"Zoom\"><source>Zoom</source>"
                                 "<target>Ver<g id=\"1\">größerung</g></target></trans-unit>"))));
        TranslationTable table(QStringLiteral("units"));
        QVERIFY(table.LoadFile(path));
        QCOMPARE(table.GetText(QStringLiteral("General")), QStringLiteral("Allgemein"));
        QCOMPARE(table.GetText(QStringLiteral("Width")), QStringLiteral("Breite"));
        QCOMPARE(table.GetText(QStringLiteral("Untranslated")), QStringLiteral("Untranslated"));
        QVERIFY(!table.Contains(QStringLiteral("Untranslated")));
        QCOMPARE(table.GetText(QStringLiteral("Empty")), QStringLiteral("Empty"));
        QCOMPARE(table.GetText(QStringLiteral("Fixed")), QStringLiteral("Fixed"));
        QCOMPARE(table.GetText(QStringLiteral("Zoom")), QStringLiteral("Vergrößerung"));
        QCOMPARE(table.GetText(QStringLiteral("u7")), QStringLiteral("Vergrößerung"));
        QCOMPARE(table.GetText(QStringLiteral("general")), QStringLiteral("general"));
        QCOMPARE(table.GetText(QStringLiteral("Height")), QStringLiteral("Höhe"));
        QCOMPARE(table.GetCount(), 5);

        // Version 2 joins the segments of a unit.
        const QString path2 = mDir.filePath(QStringLiteral("units2.xlf"));
        QVERIFY(
            writeFile(path2, QStringLiteral("<xliff version=\"2.0\" xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" "
                                            "srcLang=\"en\" trgLang=\"de\"><file id=\"f\">"
                                            "<unit id=\"Greeting\"><segment><source>Hello.</source>"
                                            "<target>Hallo.</target></segment><segment><source> Bye.</source>"
                                            "<target> Tschüss.</target></segment></unit>"
                                            "</file></xliff>")));
        QVERIFY(table.LoadFile(path2));
        QCOMPARE(table.GetText(QStringLiteral("Greeting")), QStringLiteral("Hallo. Tschüss."));
    }

    void renamingEmptiesTable()
    {
        TranslationTable table(QStringLiteral("Pages"));
        table.Insert(QStringLiteral("a"), QStringLiteral("b"));
        table.SetName(QStringLiteral("Pages"));
        QCOMPARE(table.GetCount(), 1);
        // A name in other case is another name.
        table.SetName(QStringLiteral("PAGES"));
        QCOMPARE(table.GetCount(), 0);
        QCOMPARE(table.GetName(), QStringLiteral("PAGES"));
    }

    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("special");
        QTest::addColumn<QString>("diagnostic");

        QTest::newRow("malformed") << QByteArray("<xliff><file><body><trans-unit id=\"a\"><target>x</target>") << ""
                                   << QStringLiteral("Failed to read file");
        QTest::newRow("missing") << QByteArray() << QStringLiteral("missing") << QStringLiteral("");
        const QByteArray deep = QByteArray("<g>").repeated(300) + QByteArray("</g>").repeated(300);
        QTest::newRow("nesting beyond the limit")
            << xliff(QString::fromLatin1(deep)).toUtf8() << "" << QStringLiteral("deeper than 256 levels");
        QTest::newRow("nesting inside a target")
            << xliff(QStringLiteral("<trans-unit id=\"a\"><target>%1</target></trans-unit>")
                         .arg(QString::fromLatin1(deep)))
                   .toUtf8()
            << "" << QStringLiteral("deeper than 256 levels");
        QByteArray attributes = "<xliff";
        for (int i = 0; i < 200000; ++i)
            attributes += " a" + QByteArray::number(i) + "=''";
        QTest::newRow("200000 attributes") << attributes + "/>"
                                           << "" << QStringLiteral("more than 256 attributes");
        QTest::newRow("larger than the limit")
            << xliff(QString()).toUtf8() + QByteArray(int(TranslationTable::kMaxFileSize), ' ') << ""
            << QStringLiteral("larger than");
        QTest::newRow("entity expansion")
            << QByteArray("<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                          "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
                          "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'>]><xliff><file><body><trans-unit id='a'>"
                          "<target>&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;</target></trans-unit></body></file></xliff>")
            << "" << QStringLiteral("Failed to read file");
        QTest::newRow("folder") << QByteArray() << QStringLiteral("folder") << QStringLiteral("Not a regular file");
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << QByteArray() << QStringLiteral("fifo") << QStringLiteral("Not a regular file");
        QTest::newRow("device") << QByteArray() << QStringLiteral("device") << QStringLiteral("Not a regular file");
#endif
    }

    void hostileFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, special);
        QFETCH(QString, diagnostic);

        QTemporaryDir dir;
        const QString path = Probe::HostileFile(dir.filePath(QStringLiteral("hostile.xlf")), special, content);
        QVERIFY(!path.isEmpty());
        QStringList messages;
        Internal::SetDiagnosticHook([&messages](const QString& text) { messages.append(text); });
        TranslationTable table;
        table.Insert(QStringLiteral("a"), QStringLiteral("old"));
        QVERIFY(!table.LoadFile(path));
        QCOMPARE(table.GetCount(), 0);
        // A missing file is no error; every other failure is reported once.
        QCOMPARE(messages.size(), diagnostic.isEmpty() ? 0 : 1);
        if (!diagnostic.isEmpty())
            QVERIFY2(messages.first().contains(path) && messages.first().contains(diagnostic),
                     qPrintable(messages.first()));
    }

    void fileFoundByNameAndLocale_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");

        const QStringList all = {QStringLiteral("Find_de-DE.xlf"), QStringLiteral("Find_de.xlf"),
                                 QStringLiteral("Find.xlf")};
        QTest::newRow("full locale") << all << QStringLiteral("de-DE") << QStringLiteral("Find_de-DE.xlf");
        QTest::newRow("language") << all << QStringLiteral("de-AT") << QStringLiteral("Find_de.xlf");
        QTest::newRow("neutral") << all << QStringLiteral("fr-FR") << QStringLiteral("Find.xlf");
        QTest::newRow("underscore form") << QStringList{QStringLiteral("Find_pt_BR.xliff")} << "pt-BR"
                                         << QStringLiteral("Find_pt_BR.xliff");
        QTest::newRow("none") << QStringList{QStringLiteral("Other_de.xlf")} << "de-DE" << QStringLiteral("");
    }

    void fileFoundByNameAndLocale()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, locale);
        QFETCH(QString, expected);

        QTemporaryDir folder;
        for (const QString& file : std::as_const(files))
            QVERIFY(writeFile(folder.filePath(file), xliff(QString())));
        QVERIFY(CoreUIManager::GetInstance()->SetTranslatorFilesPath(folder.path().toStdWString().c_str()));
        setLocale(locale);
        TranslationTable table(QStringLiteral("Find"));
        const QString found = table.FindTranslationFile();
        QCOMPARE(found, expected.isEmpty() ? QString() : folder.filePath(expected));
        QVERIFY(CoreUIManager::GetInstance()->SetTranslatorFilesPath(mDir.path().toStdWString().c_str()));
    }

    void cacheIsKeyedByLowerCaseNameAndFollowsLocale()
    {
        QVERIFY(writeFile(mDir.filePath(QStringLiteral("Cached_de-DE.xlf")),
                          xliff(unit(QStringLiteral("Yes"), QStringLiteral("Ja")))));
        QVERIFY(writeFile(mDir.filePath(QStringLiteral("Cached_fr-FR.xlf")),
                          xliff(unit(QStringLiteral("Yes"), QStringLiteral("Oui")))));
        setLocale(QStringLiteral("de-DE"));
        TranslationTable* table = TranslationTable::GetCached(QStringLiteral("Cached"));
        QVERIFY(table);
        QCOMPARE(TranslationTable::GetCached(QStringLiteral("CACHED")), table);
        QCOMPARE(table->GetText(QStringLiteral("Yes")), QStringLiteral("Ja"));
        QVERIFY(!TranslationTable::GetCached(QString()));
        // A filer translates through a cached table whose file name differs in case.
        QVERIFY(writeFile(mDir.filePath(QStringLiteral("Page_de-DE.xlf")),
                          xliff(unit(QStringLiteral("Group.Title"), QStringLiteral("Gruppe")))));
        XmlFiler filer;
        QVERIFY(filer.Parse(QStringLiteral("<Root Label=\"tr( Group.Title )\" Other=\"tr(Missing)\"/>")));
        filer.SetTranslationTable(TranslationTable::GetCached(QStringLiteral("page")));
        QCOMPARE(filer.ReadString(QStringLiteral("Label")), QStringLiteral("Gruppe"));
        QCOMPARE(filer.ReadString(QStringLiteral("Other")), QStringLiteral("Missing"));

        setLocale(QStringLiteral("fr-FR"));
        QCOMPARE(TranslationTable::GetCached(QStringLiteral("cached")), table);
        QCOMPARE(table->GetText(QStringLiteral("Yes")), QStringLiteral("Oui"));

        setLocale(QStringLiteral("ja-JP"));
        TranslationTable::GetCached(QStringLiteral("Cached"));
        QCOMPARE(table->GetText(QStringLiteral("Yes")), QStringLiteral("Yes"));
    }

private:
    QTemporaryDir mDir;
};

QTEST_MAIN(tst_TranslationTable)
#include "tst_translationtable.moc"
