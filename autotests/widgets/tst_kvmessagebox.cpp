#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/widgets/IMessageBox.h>
#include <KvUICore/widgets/KvMessageBox.h>
#include <KvUICore/widgets/KvMessageBoxImp.h>
#include <KvUICore/widgets/MessageBoxProvider.h>
#include <KvUICore/widgets/UIMessageBox_p.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Kavrel::UICore;

namespace {

using BoxAction = std::function<void(QMessageBox*)>;

// Runs `action` on the message box as soon as it is shown modally, so that
// Show never waits for a user.
void whenShown(BoxAction action)
{
    auto* timer = new QTimer;
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        action(box);
    });
    timer->start();
}

const BoxAction clickOk = [](QMessageBox* shown) { shown->button(QMessageBox::Ok)->click(); };

QAbstractButton* buttonWithText(QMessageBox* box, const QString& text)
{
    const QList<QAbstractButton*> buttons = box->buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

// A host's own box: answers without showing anything.
class HostBox : public KvMessageBoxImp
{
public:
    int Show(HWND, bool& checked) override
    {
        checked = true;
        return 77;
    }
    int Show(HWND parent) override
    {
        bool checked = false;
        return Show(parent, checked);
    }
};

int gHostBoxesCreated = 0;

class HostProvider : public IMessageBoxProvider
{
public:
    IMessageBox* CreateMessageBox() override
    {
        ++gHostBoxesCreated;
        return new HostBox;
    }
    void DestroyMessageBox(IMessageBox* messageBox) override { delete messageBox; }
};

bool gCallbackCalled = false;
bool callback(KvActiveTaskDialog*, const KvMessageBoxNotificationArgs&, void*)
{
    gCallbackCalled = true;
    return true;
}

} // namespace

class tst_KvMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CoreUIManager::Initialize(); }

    void cleanupTestCase() { CoreUIManager::Uninitialize(); }

    void defaultProviderIsCreatedOnDemand()
    {
        CoreUIManager* manager = CoreUIManager::GetInstance();
        IMessageBoxProvider* provider = manager->GetMessageBoxProvider();
        QVERIFY(dynamic_cast<MessageBoxProvider*>(provider));
        QCOMPARE(manager->GetMessageBoxProvider(), provider);
        IMessageBox* box = provider->CreateMessageBox();
        QVERIFY(dynamic_cast<KvMessageBoxImp*>(box));
        provider->DestroyMessageBox(box);
        provider->DestroyMessageBox(nullptr);
    }

    void boxClosedWithoutAButton_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("expected");
        // A plain box shows OK alone and counts closing its window as OK; a box
        // gone without any button answers Cancel.
        QTest::newRow("plain, ok pressed") << 0 << "ok" << 1;
        QTest::newRow("plain, window closed") << 0 << "close" << 1;
        QTest::newRow("plain, gone") << 0 << "done" << 8;
        QTest::newRow("yes/retry, gone") << (2 | 16) << "done" << 8;
    }

    void boxClosedWithoutAButton()
    {
        QFETCH(int, buttons);
        QFETCH(QString, action);
        KvMessageBox box;
        box.SetStandardButtons(KvMessageBox::StandardButton(buttons));
        int seen = 0;
        whenShown([&](QMessageBox* shown) {
            seen = int(shown->buttons().size());
            if (action == QLatin1String("ok"))
                shown->button(QMessageBox::Ok)->click();
            else if (action == QLatin1String("close"))
                shown->close();
            else
                shown->done(0);
        });
        bool checked = true;
        QTEST(box.Show(nullptr, checked), "expected");
        QVERIFY(!checked);
        QCOMPARE(seen, buttons ? 2 : 1);
    }

    void standardButtonsReturnTheirValues_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("pressed");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("shown");
        using B = QMessageBox;
        QTest::newRow("ok") << 1 << int(B::Ok) << 1 << int(B::Ok);
        QTest::newRow("yes") << (2 | 4) << int(B::Yes) << 2 << int(B::Yes | B::No);
        QTest::newRow("no") << (2 | 4) << int(B::No) << 4 << int(B::Yes | B::No);
        QTest::newRow("cancel") << (1 | 8) << int(B::Cancel) << 8 << int(B::Ok | B::Cancel);
        QTest::newRow("retry") << (16 | 8) << int(B::Retry) << 16 << int(B::Retry | B::Cancel);
        QTest::newRow("close") << 32 << int(B::Close) << 32 << int(B::Close);
        QTest::newRow("all six, close") << 63 << int(B::Close) << 32
                                        << int(B::Ok | B::Yes | B::No | B::Cancel | B::Retry | B::Close);
        QTest::newRow("unknown bits ignored") << (2 | 64 | 1024) << int(B::Yes) << 2 << int(B::Yes);
    }

    void standardButtonsReturnTheirValues()
    {
        QFETCH(int, buttons);
        QFETCH(int, pressed);
        KvMessageBox box;
        box.SetStandardButtons(KvMessageBox::StandardButton(buttons));
        int shownButtons = 0;
        whenShown([&](QMessageBox* shown) {
            shownButtons = int(shown->standardButtons());
            shown->button(QMessageBox::StandardButton(pressed))->click();
        });
        QTEST(box.Show(nullptr), "expected");
        QTEST(shownButtons, "shown");
    }

    void keysAnswerEscapeAndDefaultButtons_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("expected");
        // A custom "Later" button with id 200 is always there too.
        QTest::newRow("yes/no, escape no") << (2 | 4) << Qt::Key_Escape << 4 << 4;
        QTest::newRow("yes/no, escape yes") << (2 | 4) << Qt::Key_Escape << 2 << 2;
        QTest::newRow("ok/cancel/retry, escape retry") << (1 | 8 | 16) << Qt::Key_Escape << 16 << 16;
        QTest::newRow("custom escape") << (2 | 4) << Qt::Key_Escape << 200 << 200;
        QTest::newRow("yes/no, default no") << (2 | 4) << Qt::Key_Return << 4 << 4;
        QTest::newRow("ok/cancel, custom default") << (1 | 8) << Qt::Key_Return << 200 << 200;
    }

    void keysAnswerEscapeAndDefaultButtons()
    {
        QFETCH(int, buttons);
        QFETCH(Qt::Key, key);
        QFETCH(int, button);
        KvMessageBox box;
        box.SetStandardButtons(KvMessageBox::StandardButton(buttons));
        box.AddButton(L"Later", 200);
        if (key == Qt::Key_Escape)
            box.SetEscapeButton(button);
        else
            box.SetDefaultButton(button);
        whenShown([key](QMessageBox* shown) { QTest::keyClick(shown, key); });
        QTEST(box.Show(nullptr), "expected");
    }

    void customButtonTextIsReplacedPerId()
    {
        KvMessageBox box;
        box.AddButton(L"First", 30);
        box.AddButton(L"Second", 10);
        box.AddButton(L"Replaced", 30);
        QStringList texts;
        int standard = -1;
        whenShown([&](QMessageBox* shown) {
            for (QAbstractButton* button : shown->buttons())
                texts.append(button->text());
            standard = int(shown->standardButtons());
            buttonWithText(shown, QStringLiteral("Replaced"))->click();
        });
        QCOMPARE(box.Show(nullptr), 30);
        texts.sort();
        QCOMPARE(texts, (QStringList{QStringLiteral("Replaced"), QStringLiteral("Second")}));
        // Custom buttons alone do not bring an OK button.
        QCOMPARE(standard, 0);
    }

    void icons_data()
    {
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << 0 << int(QMessageBox::NoIcon);
        QTest::newRow("question") << 1 << int(QMessageBox::Question);
        QTest::newRow("information") << 2 << int(QMessageBox::Information);
        QTest::newRow("warning") << 3 << int(QMessageBox::Warning);
        QTest::newRow("four shows none") << 4 << int(QMessageBox::NoIcon);
        QTest::newRow("negative shows none") << -1 << int(QMessageBox::NoIcon);
    }

    void icons()
    {
        QFETCH(int, icon);
        KvMessageBox box;
        box.SetIcon(KvMessageBox::Icon(icon));
        int shownIcon = -1;
        whenShown([&](QMessageBox* shown) {
            shownIcon = int(shown->icon());
            shown->button(QMessageBox::Ok)->click();
        });
        QCOMPARE(box.Show(nullptr), 1);
        QTEST(shownIcon, "expected");
    }

    void textsAndWidthAreShown()
    {
        KvMessageBox box;
        box.SetWindowTitle(L"Save changes");
        box.SetMainInstruction(L"The drawing was modified.");
        box.SetContentText(L"Do you want to keep the changes?");
        box.SetExpandedText(L"Three views changed.");
        box.SetWidth(720);
        QStringList seen;
        int width = 0;
        whenShown([&](QMessageBox* shown) {
            seen << shown->windowTitle() << shown->text() << shown->informativeText() << shown->detailedText();
            width = shown->width();
            QVERIFY(qobject_cast<UIMessageBox*>(shown));
            shown->button(QMessageBox::Ok)->click();
        });
        QCOMPARE(box.Show(nullptr), 1);
        QCOMPARE(seen, (QStringList{QStringLiteral("Save changes"), QStringLiteral("The drawing was modified."),
                                    QStringLiteral("Do you want to keep the changes?"),
                                    QStringLiteral("Three views changed.")}));
        QVERIFY2(width >= 720, qPrintable(QString::number(width)));
    }

    void callbackIsNeverCalled()
    {
        KvMessageBox box;
        int data = 0;
        QCOMPARE(box.SetCallback(&callback), 0);
        QCOMPARE(box.SetCallbackData(&data), 0);
        box.SetCheckBoxText(L"Remember");
        whenShown([](QMessageBox* shown) {
            QVERIFY(!shown->checkBox());
            shown->button(QMessageBox::Ok)->click();
        });
        bool checked = true;
        QCOMPARE(box.Show(nullptr, checked), 1);
        QVERIFY(!checked);
        QVERIFY(!gCallbackCalled);
    }

    void qtWidgetHandleBecomesParent()
    {
        QWidget owner;
        owner.show();
        QVERIFY(QTest::qWaitForWindowExposed(&owner));
        KvMessageBox box;
        QWidget* parent = nullptr;
        whenShown([&](QMessageBox* shown) {
            parent = shown->parentWidget();
            shown->button(QMessageBox::Ok)->click();
        });
        QCOMPARE(box.Show(Platform::HandleFromWId(owner.winId())), 1);
        QCOMPARE(parent, &owner);
    }

    void hostProviderTakesOverUntilStyleChanges()
    {
        CoreUIManager* manager = CoreUIManager::GetInstance();
        KvMessageBox::SetStyle(KvMessageBox::StyleDefault);
        QCOMPARE(KvMessageBox::GetStyle(), KvMessageBox::StyleDefault);
        manager->SetMessageBoxProvider(new HostProvider);
        gHostBoxesCreated = 0;
        {
            KvMessageBox box;
            QCOMPARE(gHostBoxesCreated, 1);
            bool checked = false;
            QCOMPARE(box.Show(nullptr, checked), 77);
            QVERIFY(checked);
        }

        // The same style keeps the host's provider.
        KvMessageBox::SetStyle(KvMessageBox::StyleDefault);
        QVERIFY(dynamic_cast<HostProvider*>(manager->GetMessageBoxProvider()));

        // A host box outlives the provider that made it; its release still works.
        auto* outliving = new KvMessageBox;
        QCOMPARE(gHostBoxesCreated, 2);

        KvMessageBox::SetStyle(KvMessageBox::StyleTaskDialog);
        QCOMPARE(KvMessageBox::GetStyle(), KvMessageBox::StyleTaskDialog);
        QVERIFY(dynamic_cast<MessageBoxProvider*>(manager->GetMessageBoxProvider()));
        delete outliving;
        {
            KvMessageBox box;
            QCOMPARE(gHostBoxesCreated, 2);
            whenShown(clickOk);
            QCOMPARE(box.Show(nullptr), 1);
        }
        KvMessageBox::SetStyle(KvMessageBox::StyleDefault);
    }
};

QTEST_MAIN(tst_KvMessageBox)
#include "tst_kvmessagebox.moc"
