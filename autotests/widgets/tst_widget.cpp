#include "../PaintProbe.h"

#include <KvUICore/widgets/Widget.h>
#include <KvUICore/widgets/WidgetImp.h>

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

namespace {

// A widget with a little state of each kind the helpers write.
class StateWidget : public WidgetImp
{
public:
    using WidgetImp::LoadState;
    using WidgetImp::SaveState;
    using WidgetImp::WidgetImp;

    int miValue = 0;
    bool mbFlag = false;
    QString msNote;
    QString msTag;
    QString msLoadedTag;
    int miBorderCalls = 0;

    // The protected helpers, for the attribute rows.
    bool ReadBool(QDomElement& e, const QString& name, bool fallback) { return GetBoolAttribute(e, name, fallback); }
    int ReadInt(QDomElement& e, const QString& name, int fallback) { return GetIntAttribute(e, name, fallback); }

protected:
    void LoadState(QDomElement& element) override
    {
        msLoadedTag = element.tagName();
        miValue = GetIntAttribute(element, QStringLiteral("value"), -1);
        mbFlag = GetBoolAttribute(element, QStringLiteral("flag"), false);
        msNote = element.firstChildElement(QStringLiteral("Note")).text();
    }

    void SaveState(QDomElement& element) const override
    {
        SetIntAttribute(element, QStringLiteral("value"), miValue);
        SetBoolAttribute(element, QStringLiteral("flag"), mbFlag);
        if (!msNote.isEmpty()) {
            QDomDocument document = element.ownerDocument();
            QDomElement note = document.createElement(QStringLiteral("Note"));
            note.appendChild(document.createTextNode(msNote));
            element.appendChild(note);
        }
    }

    QString StateNodeId() const override { return msTag; }
    void BorderVisibleChanged() override { ++miBorderCalls; }
};

class StateHandle : public Widget
{
public:
    StateHandle()
        : Widget(new StateWidget(static_cast<QWidget*>(nullptr)))
    {}
    StateWidget* Imp() { return static_cast<StateWidget*>(GetImpObj()); }
    void Replace(void* imp) { SetImpObj(imp); }
};

QDomElement elementAt(const QDomDocument& document, const QStringList& tags)
{
    QDomElement current = document.documentElement();
    for (const QString& tag : tags)
        current = current.firstChildElement(tag);
    return current;
}

QDomDocument parse(const QString& path)
{
    QDomDocument document;
    document.setContent(Probe::ReadFile(path));
    return document;
}

// A state file in a folder of its own.
struct StateFile
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
};

} // namespace

class tst_Widget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullHandleGivesTopLevelWidget()
    {
        WidgetImp imp(static_cast<HWND>(nullptr));
        QVERIFY(imp.isWindow());
        QVERIFY(!imp.IsParentWindowsNativeWindow());
        QVERIFY(imp.testAttribute(Qt::WA_AlwaysShowToolTips));
        QVERIFY(!imp.IsBorderVisible());
    }

    void qtHostWidget_data()
    {
        QTest::addColumn<bool>("viaHandle");
        QTest::addColumn<bool>("ownLayout");
        QTest::newRow("handle of a widget without layout") << true << false;
        QTest::newRow("handle of a widget with a layout") << true << true;
        QTest::newRow("parent widget with a layout") << false << true;
    }

    void qtHostWidget()
    {
        QFETCH(bool, viaHandle);
        QFETCH(bool, ownLayout);
        QWidget owner;
        owner.resize(300, 200);
        QPointer<QLayout> oldLayout = ownLayout ? new QVBoxLayout(&owner) : nullptr;
        auto* label = new QLabel(QStringLiteral("kept"), &owner);
        if (oldLayout)
            oldLayout->addWidget(label);
        auto* imp = viaHandle ? new WidgetImp(Platform::HandleFromWId(owner.winId())) : new WidgetImp(&owner);
        QCOMPARE(imp->parentWidget(), &owner);
        QCOMPARE(label->parentWidget(), &owner);
        QVERIFY(!imp->isWindow());
        QVERIFY(!imp->IsParentWindowsNativeWindow());
        // The widget fills its host through a layout of its own.
        QVERIFY(oldLayout.isNull());
        QCOMPARE(owner.layout()->indexOf(imp), 0);
        QCOMPARE(owner.layout()->count(), 1);
        QCOMPARE(owner.layout()->contentsMargins(), QMargins());
        QVERIFY(Probe::Shown(&owner));
        QTRY_COMPARE(imp->geometry(), owner.rect());
    }

    void copiesShareOneImplementation()
    {
        StateHandle owner;
        Widget view(owner);
        owner.Resize(120, 80);
        QCOMPARE(view.GetWidth(), 120);
        QCOMPARE(view.GetHeight(), 80);

        // Assignment takes the other implementation without releasing its own.
        StateHandle target;
        QPointer<StateWidget> previous(target.Imp());
        static_cast<Widget&>(target) = owner;
        QVERIFY(!previous.isNull());
        QCOMPARE(target.Imp(), owner.Imp());
        delete previous.data();
    }

    void viewOutlivingOwnerSeesNoImplementation()
    {
        auto* owner = new StateHandle;
        QPointer<StateWidget> imp(owner->Imp());
        Widget view(*owner);
        delete owner;
        QVERIFY(imp.isNull());
        QCOMPARE(view.GetWidth(), 0);
        QVERIFY(!view.IsVisible());
        QVERIFY(!view.SaveState(L"/nonexistent/state.xml", L"A"));
    }

    void setImpObjReplacesImplementation()
    {
        StateHandle handle;
        QPointer<StateWidget> first(handle.Imp());
        auto* second = new StateWidget(static_cast<QWidget*>(nullptr));
        handle.Replace(second);
        QVERIFY(first.isNull());
        QCOMPARE(handle.Imp(), second);
        handle.Replace(second);
        QCOMPARE(handle.Imp(), second);
    }

    void resizeEmitsBeforeSizeChanges()
    {
        WidgetImp imp;
        imp.resize(50, 50);
        QList<QSize> sizesSeen;
        connect(&imp, &WidgetImp::Resizing, &imp, [&](int w, int h) {
            QCOMPARE(imp.size(), QSize(50, 50));
            sizesSeen.append(QSize(w, h));
        });
        imp.Resize(200, 100);
        QCOMPARE(imp.size(), QSize(200, 100));
        imp.resize(50, 50);
        // The position is scaled only inside a native window, never without one.
        imp.Resize(300, 150, 210, 110);
        QCOMPARE(sizesSeen, (QList<QSize>{QSize(200, 100), QSize(210, 110)}));
        QCOMPARE(imp.geometry(), QRect(300, 150, 210, 110));
        QCOMPARE(QPoint(imp.GetX(), imp.GetY()), QPoint(300, 150));
    }

    void showBorderCallsHookEveryTime()
    {
        StateHandle handle;
        handle.ShowBorder(true);
        handle.ShowBorder(true);
        QCOMPARE(handle.Imp()->miBorderCalls, 2);
        QVERIFY(handle.Imp()->IsBorderVisible());
        handle.ShowBorder(false);
        QVERIFY(!handle.Imp()->IsBorderVisible());
        QCOMPARE(handle.Imp()->miBorderCalls, 3);
    }

    void setFocusFocusesImplementation()
    {
        StateHandle handle;
        handle.Imp()->setFocusPolicy(Qt::StrongFocus);
        handle.Show();
        QVERIFY(QTest::qWaitForWindowExposed(handle.Imp()));
        handle.Imp()->activateWindow();
        handle.SetFocus();
        QTRY_VERIFY(handle.Imp()->hasFocus());
    }

    void attributes_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<int>("intValue");
        QTest::addColumn<bool>("boolValue");

        // The defaults passed are 42 and true.
        QTest::newRow("absent") << QStringLiteral("<E/>") << 42 << true;
        QTest::newRow("empty") << QStringLiteral("<E a=\"\"/>") << 42 << true;
        QTest::newRow("zero") << QStringLiteral("<E a=\"0\"/>") << 0 << false;
        QTest::newRow("one") << QStringLiteral("<E a=\"1\"/>") << 1 << true;
        QTest::newRow("two is true") << QStringLiteral("<E a=\"2\"/>") << 2 << true;
        QTest::newRow("negative") << QStringLiteral("<E a=\"-17\"/>") << -17 << true;
        QTest::newRow("not a number reads as zero") << QStringLiteral("<E a=\"abc\"/>") << 0 << false;
        QTest::newRow("hex is not decimal") << QStringLiteral("<E a=\"0x10\"/>") << 0 << false;
    }

    void attributes()
    {
        QFETCH(QString, xml);
        QDomDocument document;
        QVERIFY(document.setContent(xml));
        QDomElement element = document.documentElement();
        StateWidget imp;
        QTEST(imp.ReadInt(element, QStringLiteral("a"), 42), "intValue");
        QTEST(imp.ReadBool(element, QStringLiteral("a"), true), "boolValue");
    }

    void stateFileKeepsOtherWidgetsStates()
    {
        StateFile file;

        StateWidget options, layout, toolbar;
        options.miValue = 1;
        options.msNote = QStringLiteral("options");
        layout.miValue = 2;
        toolbar.miValue = 3;
        toolbar.mbFlag = true;
        QVERIFY(options.SaveState(file.path, QStringLiteral("Dialogs/Options")));
        QVERIFY(layout.SaveState(file.path, QStringLiteral("Dialogs/Layout")));
        QVERIFY(toolbar.SaveState(file.path, QStringLiteral("Toolbar")));

        options.miValue = 10;
        options.msNote = QStringLiteral("changed");
        QVERIFY(options.SaveState(file.path, QStringLiteral("/Dialogs//Options/")));

        const QDomDocument document = parse(file.path);
        QCOMPARE(document.documentElement().tagName(), QStringLiteral("Root"));
        QCOMPARE(document.documentElement().elementsByTagName(QStringLiteral("Dialogs")).count(), 1);
        QCOMPARE(document.documentElement().elementsByTagName(QStringLiteral("Options")).count(), 1);

        StateWidget reader;
        QVERIFY(reader.LoadState(file.path, QStringLiteral("Dialogs/Layout")));
        QCOMPARE(reader.miValue, 2);
        QVERIFY(!reader.mbFlag);
        QVERIFY(reader.LoadState(file.path, QStringLiteral("Toolbar")));
        QCOMPARE(reader.miValue, 3);
        QVERIFY(reader.mbFlag);
        QVERIFY(reader.LoadState(file.path, QStringLiteral("Dialogs/Options")));
        QCOMPARE(reader.miValue, 10);
        QCOMPARE(reader.msNote, QStringLiteral("changed"));
        QCOMPARE(reader.msLoadedTag, QStringLiteral("Options"));
    }

    void savingTwiceLeavesNoLeftovers()
    {
        StateFile file;
        StateWidget imp;
        imp.msNote = QStringLiteral("first");
        QVERIFY(imp.SaveState(file.path, QStringLiteral("A/B")));
        // Something written by an older version of the widget must go too.
        QDomDocument document = parse(file.path);
        elementAt(document, {QStringLiteral("A"), QStringLiteral("B")})
            .setAttribute(QStringLiteral("stale"), QStringLiteral("x"));
        QVERIFY(Probe::WriteFile(file.path, document.toByteArray()));

        imp.msNote = QStringLiteral("second");
        QVERIFY(imp.SaveState(file.path, QStringLiteral("A/B")));
        document = parse(file.path);
        const QDomElement element = elementAt(document, {QStringLiteral("A"), QStringLiteral("B")});
        QVERIFY(!element.hasAttribute(QStringLiteral("stale")));
        QCOMPARE(element.elementsByTagName(QStringLiteral("Note")).count(), 1);
        QCOMPARE(element.firstChildElement(QStringLiteral("Note")).text(), QStringLiteral("second"));
        QCOMPARE(element.attributes().count(), 2);

        // No temporary files stay behind in the folder.
        QCOMPARE(QDir(file.dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("state.xml")});
    }

    void pathsWithoutPartsAreRejected_data()
    {
        QTest::addColumn<QString>("nodePath");
        QTest::newRow("empty") << QString();
        QTest::newRow("slash") << QStringLiteral("/");
        QTest::newRow("slashes") << QStringLiteral("///");
    }

    void pathsWithoutPartsAreRejected()
    {
        QFETCH(QString, nodePath);
        StateFile file;
        const QByteArray original = "<Root><Other value=\"7\"/></Root>\n";
        QVERIFY(Probe::WriteFile(file.path, original));
        StateWidget imp;
        QVERIFY(!imp.SaveState(file.path, nodePath));
        QCOMPARE(Probe::ReadFile(file.path), original);
        QVERIFY(!imp.LoadState(file.path, nodePath));

        // A missing file is not created either.
        const QString missing = file.dir.filePath(QStringLiteral("missing.xml"));
        QVERIFY(!imp.SaveState(missing, nodePath));
        QVERIFY(!QFile::exists(missing));
    }

    void stateFileInputs_data()
    {
        // Each input stands where the state file should be; "special" makes
        // the path something else. The element loaded is A, the one saved A/B.
        // The filer's tests hold the hostile files; here a refused file stays as it was.
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("special");
        QTest::addColumn<bool>("loads");
        QTest::addColumn<bool>("saves");

        QTest::newRow("missing") << QByteArray() << "missing" << false << true;
        QTest::newRow("empty") << QByteArray() << "" << false << true;
        QTest::newRow("blanks only") << QByteArray(" \n\t") << "" << false << true;
        // Any document element is read, and kept on saving.
        QTest::newRow("other states") << QByteArray("<Settings><A value=\"1\"/><Other x=\"1\"/></Settings>") << ""
                                      << true << true;
        QTest::newRow("not xml") << QByteArray("this is not xml at all") << "" << false << false;
        QTest::newRow("cut short") << QByteArray("<Root><A value=\"1\"><B") << "" << false << false;
        QTest::newRow("instruction whose target is no name")
            << QByteArray("<?$?><Root><A value=\"1\"/></Root>") << "" << true << false;
        QTest::newRow("folder") << QByteArray() << "folder" << false << false;
        QTest::newRow("missing folder") << QByteArray() << "missing folder" << false << false;
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << QByteArray() << "fifo" << false << false;
#endif
    }

    void stateFileInputs()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, special);
        QFETCH(bool, saves);
        StateFile file;
        const QString path = Probe::HostileFile(file.path, special, content);
        QVERIFY(!path.isEmpty());

        StateWidget reader;
        QTEST(reader.LoadState(path, QStringLiteral("A")), "loads");
        StateWidget imp;
        imp.miValue = 9;
        QCOMPARE(imp.SaveState(path, QStringLiteral("A/B")), saves);
        if (saves) {
            QVERIFY(reader.LoadState(path, QStringLiteral("A/B")));
            QCOMPARE(reader.miValue, 9);
            const QDomElement root = parse(path).documentElement();
            QCOMPARE(root.tagName(), QString::fromLatin1(content.contains("Settings") ? "Settings" : "Root"));
            QCOMPARE(root.firstChildElement(QStringLiteral("Other")).attribute(QStringLiteral("x")),
                     QString::fromLatin1(content.contains("Other") ? "1" : ""));
        } else if (special.isEmpty()) {
            // A file that can't be read back is never replaced.
            QCOMPARE(Probe::ReadFile(path), content);
        }
    }

    void loadStateFailures()
    {
        StateFile file;
        StateWidget imp;
        imp.miValue = 4;
        QVERIFY(imp.SaveState(file.path, QStringLiteral("A/B")));

        StateWidget reader;
        reader.miValue = 77;
        QVERIFY(!reader.LoadState(file.path, QStringLiteral("A/C")));
        QVERIFY(!reader.LoadState(file.path, QStringLiteral("B")));
        QCOMPARE(reader.miValue, 77);
        // The document element itself is not part of the path.
        QVERIFY(!reader.LoadState(file.path, QStringLiteral("Root/A/B")));
        QVERIFY(reader.LoadState(file.path, QStringLiteral("A")));
        QCOMPARE(reader.miValue, -1);
    }

    void stringFormRoundTrips()
    {
        StateHandle handle;
        StateWidget* imp = handle.Imp();
        imp->msTag = QStringLiteral("PanelState");
        imp->miValue = 21;
        imp->mbFlag = true;
        imp->msNote = QStringLiteral("a <note> & more");
        const QString xml = imp->SaveState();
        QDomDocument document;
        QVERIFY(document.setContent(xml));
        QCOMPARE(document.documentElement().tagName(), QStringLiteral("PanelState"));
        QCOMPARE(document.documentElement().attribute(QStringLiteral("value")), QStringLiteral("21"));
        QCOMPARE(document.documentElement().attribute(QStringLiteral("flag")), QStringLiteral("1"));
        QCOMPARE(document.childNodes().count(), 1);

        StateWidget reader;
        QVERIFY(reader.LoadState(xml));
        QCOMPARE(reader.miValue, 21);
        QVERIFY(reader.mbFlag);
        QCOMPARE(reader.msNote, imp->msNote);
        // Any tag is accepted when reading.
        QVERIFY(reader.LoadState(QStringLiteral("<Other value=\"3\"/>")));
        QCOMPARE(reader.msLoadedTag, QStringLiteral("Other"));
        QCOMPARE(reader.miValue, 3);

        const std::wstring wide = xml.toStdWString();
        StateHandle second;
        QVERIFY(second.LoadState(wide.c_str()));
        QCOMPARE(second.Imp()->miValue, 21);
    }

    void stringFormOffWithoutNodeIdOrParse()
    {
        WidgetImp imp;
        QVERIFY(imp.SaveState().isNull());
        Widget handle;
        wchar_t buffer[16] = {L'x'};
        QCOMPARE(handle.SaveState(buffer, 16), 0);
        QCOMPARE(buffer[0], L'\0');

        // Strings that do not parse are rejected and change nothing.
        StateWidget state;
        state.miValue = 5;
        QVERIFY(!state.LoadState(QString()));
        QVERIFY(!state.LoadState(QStringLiteral("<Open>")));
        QVERIFY(!state.LoadState(QStringLiteral("no xml")));
        QCOMPARE(state.miValue, 5);
        QVERIFY(!handle.LoadState(L""));
        QVERIFY(!handle.LoadState(static_cast<const wchar_t*>(nullptr)));
    }

    void handleCopiesStringIntoBuffer()
    {
        StateHandle handle;
        handle.Imp()->msTag = QStringLiteral("S");
        handle.Imp()->miValue = 8;
        const QString expected = handle.Imp()->SaveState();
        std::vector<wchar_t> buffer(expected.size() + 16, L'?');
        QCOMPARE(handle.SaveState(buffer.data(), int(buffer.size())), int(expected.size()));
        QCOMPARE(QString::fromWCharArray(buffer.data()), expected);

        StateFile file;
        const std::wstring path = file.dir.filePath(QStringLiteral("handle.xml")).toStdWString();
        QVERIFY(handle.SaveState(path.c_str(), L"Handles/First"));
        StateHandle reader;
        QVERIFY(reader.LoadState(path.c_str(), L"Handles/First"));
        QCOMPARE(reader.Imp()->miValue, 8);
        QVERIFY(!reader.LoadState(path.c_str(), L"Handles/Second"));
    }
};

QTEST_MAIN(tst_Widget)
#include "tst_widget.moc"
