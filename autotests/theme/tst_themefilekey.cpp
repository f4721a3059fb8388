#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeKeyCatalogue.h>

#include <QSet>
#include <QTest>

using namespace Kavrel::UICore;

class tst_ThemeFileKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliberateTexts_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::newRow("ContextMenuIcon") << ThemeFileKey::ContextMenuIcon << "ContectMenu";
        QTest::newRow("HideTreeIcon") << ThemeFileKey::HideTreeIcon << "hide tree";
        QTest::newRow("HoverAddAndEditIcon") << ThemeFileKey::HoverAddAndEditIcon << "Hover_Hover_AddAndEdit";
        QTest::newRow("HoverAddIcon") << ThemeFileKey::HoverAddIcon << "Hover_Hover_Add";
        QTest::newRow("HoverDeleteIcon") << ThemeFileKey::HoverDeleteIcon << "Hover_Hover_Delete";
        QTest::newRow("HoverDownloadIcon") << ThemeFileKey::HoverDownloadIcon << "Hover_Hover_Download";
        QTest::newRow("HoverEditIcon") << ThemeFileKey::HoverEditIcon << "Hover_Hover_Edit";
        QTest::newRow("HoverReplaceIcon") << ThemeFileKey::HoverReplaceIcon << "Hover_Hover_Replace";
        QTest::newRow("IdleAddAndEditIcon") << ThemeFileKey::IdleAddAndEditIcon << "Idle_Hover_AddAndEdit";
        QTest::newRow("IdleAddIcon") << ThemeFileKey::IdleAddIcon << "Idle_Hover_Add";
        QTest::newRow("IdleDeleteIcon") << ThemeFileKey::IdleDeleteIcon << "Idle_Hover_Delete";
        QTest::newRow("IdleDownloadIcon") << ThemeFileKey::IdleDownloadIcon << "Idle_Hover_Download";
        QTest::newRow("IdleEditIcon") << ThemeFileKey::IdleEditIcon << "Idle_Hover_Edit";
        QTest::newRow("IdleReplaceIcon") << ThemeFileKey::IdleReplaceIcon << "Idle_Hover_Replace";
        QTest::newRow("PressAddAndEditIcon") << ThemeFileKey::PressAddAndEditIcon << "Pressed_Hover_AddAndEdit";
        QTest::newRow("PressAddIcon") << ThemeFileKey::PressAddIcon << "Pressed_Hover_Add";
        QTest::newRow("PressDeleteIcon") << ThemeFileKey::PressDeleteIcon << "Pressed_Hover_Delete";
        QTest::newRow("PressDownloadIcon") << ThemeFileKey::PressDownloadIcon << "Pressed_Hover_Download";
        QTest::newRow("PressEditIcon") << ThemeFileKey::PressEditIcon << "Pressed_Hover_Edit";
        QTest::newRow("PressReplaceIcon") << ThemeFileKey::PressReplaceIcon << "Pressed_Hover_Replace";
        QTest::newRow("ShowTreeIcon") << ThemeFileKey::ShowTreeIcon << "show tree";
        QTest::newRow("plain key") << ThemeFileKey::FontNormal1 << "FontNormal1";
        QTest::newRow("lower-case key") << ThemeFileKey::wood_16Icon << "wood_16Icon";
    }

    void deliberateTexts()
    {
        QFETCH(QString, key);
        QTEST(key, "text");
    }

    void catalogueIsCompleteAndUnique()
    {
        std::size_t count = 0;
        const ThemeKeyEntry* entries = ThemeKeyCatalogue(&count);
        QCOMPARE(count, std::size_t(389));
        QSet<QString> texts;
        int different = 0;
        for (std::size_t i = 0; i < count; ++i) {
            texts.insert(QString::fromLatin1(entries[i].text));
            if (qstrcmp(entries[i].member, entries[i].text) != 0)
                ++different;
        }
        QCOMPARE(texts.size(), 389);
        QCOMPARE(different, 21);
    }
};

QTEST_GUILESS_MAIN(tst_ThemeFileKey)
#include "tst_themefilekey.moc"
