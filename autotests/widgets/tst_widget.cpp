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
    int miSetVisibleCalls = 0;

    // The protected helpers, for the attribute rows.
    bool ReadBool(QDomElement& e, const QString& name, bool fallback) { return GetBoolAttribute(e, name, fallback); }
    int ReadInt(QDomElement& e, const QString& name, int fallback) { return GetIntAttribute(e, name, fallback); }

    void SetVisible(bool visible) override
    {
        ++miSetVisibleCalls;
        WidgetImp::SetVisible(visible);
    }

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
    {
    }
    StateWidget* Imp() { return static_cast<StateWidget*>(GetImpObj()); }
    void Replace(void* imp) { SetImpObj(imp); }
};

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& data)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(data);
}

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
    document.setContent(readAll(path));
    return document;
}

} // namespace

class tst_Widget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullHandleGivesTopLevelWidget();
    void handleOfQtWidgetFillsThatWidget();
    void qtParentLosesItsOldLayout();
    void handleOfQtWidgetWithLayoutKeepsIt();
    void metaObjectName();
    void copiesShareOneImplementation();
    void viewOutlivingOwnerSeesNoImplementation();
    void setImpObjReplacesImplementation();
    void resizeEmitsBeforeSizeChanges();
    void resizeWithPositionPassesThroughWithoutNativeParent();
    void moveAndVisibilityActOnHostWidget();
    void showBorderCallsHookEveryTime();
    void setFocusFocusesImplementation();
    void attributes_data();
    void attributes();
    void attributeWriters();
    void stateFileKeepsOtherWidgetsStates();
    void savingTwiceLeavesNoLeftovers();
    void pathsWithoutPartsAreRejected_data();
    void pathsWithoutPartsAreRejected();
    void brokenOrMissingFileIsReplacedOnSave_data();
    void brokenOrMissingFileIsReplacedOnSave();
    void loadStateFailures();
    void loadAcceptsAnyDocumentElement();
    void unwritableTargetFailsAndKeepsFile();
    void stringFormRoundTrips();
    void stringFormOffWithoutNodeId();
    void stringThatDoesNotParseIsRejected();
    void handleCopiesStringIntoBuffer();
};

void tst_Widget::nullHandleGivesTopLevelWidget()
{
    WidgetImp imp(static_cast<HWND>(nullptr));
    QVERIFY(imp.isWindow());
    QVERIFY(!imp.IsParentWindowsNativeWindow());
    QVERIFY(imp.testAttribute(Qt::WA_AlwaysShowToolTips));
    QVERIFY(!imp.IsBorderVisible());
}

void tst_Widget::handleOfQtWidgetFillsThatWidget()
{
    QWidget owner;
    owner.resize(300, 200);
    const HWND handle = Platform::HandleFromWId(owner.winId());
    auto* imp = new WidgetImp(handle);
    QCOMPARE(imp->parentWidget(), &owner);
    QVERIFY(!imp->IsParentWindowsNativeWindow());
    QVERIFY(owner.layout());
    QCOMPARE(owner.layout()->indexOf(imp), 0);
    QCOMPARE(owner.layout()->contentsMargins(), QMargins());
    owner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&owner));
    QTRY_COMPARE(imp->geometry(), owner.rect());
}

void tst_Widget::handleOfQtWidgetWithLayoutKeepsIt()
{
    QWidget owner;
    auto* ownLayout = new QVBoxLayout(&owner);
    auto* label = new QLabel(QStringLiteral("kept"));
    ownLayout->addWidget(label);
    auto* imp = new WidgetImp(Platform::HandleFromWId(owner.winId()));
    QCOMPARE(owner.layout(), ownLayout);
    QCOMPARE(ownLayout->count(), 1);
    QCOMPARE(imp->parentWidget(), &owner);
    QVERIFY(!imp->isWindow());
    QVERIFY(!imp->IsParentWindowsNativeWindow());
    imp->Move(5, 7);
    QCOMPARE(QPoint(imp->GetX(), imp->GetY()), QPoint(5, 7));
}

void tst_Widget::metaObjectName()
{
    WidgetImp imp;
    QCOMPARE(imp.metaObject()->className(), "WidgetImp");
    StateWidget subclass;
    QVERIFY(subclass.inherits("WidgetImp"));
}

void tst_Widget::qtParentLosesItsOldLayout()
{
    QWidget parent;
    auto* oldLayout = new QVBoxLayout(&parent);
    auto* label = new QLabel(QStringLiteral("kept"));
    oldLayout->addWidget(label);
    QPointer<QLayout> guard(oldLayout);

    auto* imp = new WidgetImp(&parent);
    QVERIFY(guard.isNull());
    QCOMPARE(label->parentWidget(), &parent);
    QCOMPARE(parent.layout()->indexOf(imp), 0);
    QCOMPARE(parent.layout()->count(), 1);
    QVERIFY(!imp->IsParentWindowsNativeWindow());
}

void tst_Widget::copiesShareOneImplementation()
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

void tst_Widget::viewOutlivingOwnerSeesNoImplementation()
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

void tst_Widget::setImpObjReplacesImplementation()
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

void tst_Widget::resizeEmitsBeforeSizeChanges()
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
    imp.Resize(7, 8, 210, 110);
    QCOMPARE(sizesSeen, (QList<QSize>{QSize(200, 100), QSize(210, 110)}));
}

void tst_Widget::resizeWithPositionPassesThroughWithoutNativeParent()
{
    // The position is scaled only inside a native window, never for a Qt child.
    WidgetImp imp(static_cast<QWidget*>(nullptr));
    imp.Resize(300, 150, 400, 200);
    QCOMPARE(imp.geometry(), QRect(300, 150, 400, 200));
    QCOMPARE(imp.GetX(), 300);
    QCOMPARE(imp.GetY(), 150);
}

void tst_Widget::moveAndVisibilityActOnHostWidget()
{
    StateHandle handle;
    handle.Move(31, 47);
    QCOMPARE(handle.GetX(), 31);
    QCOMPARE(handle.GetY(), 47);
    QVERIFY(!handle.IsVisible());
    handle.SetVisible(true);
    QCOMPARE(handle.Imp()->miSetVisibleCalls, 1);
    QVERIFY(handle.IsVisible());
    handle.Hide();
    QVERIFY(!handle.IsVisible());
    handle.Show();
    QVERIFY(handle.IsVisible());
    QVERIFY(handle.IsEnabled());
    handle.SetEnabled(false);
    QVERIFY(!handle.IsEnabled());
    QVERIFY(handle.GetWinId() != nullptr);
    handle.Imp()->setMinimumHeight(33);
    QCOMPARE(handle.GetMinimumHeight(), 33);
}

void tst_Widget::showBorderCallsHookEveryTime()
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

void tst_Widget::setFocusFocusesImplementation()
{
    StateHandle handle;
    handle.Imp()->setFocusPolicy(Qt::StrongFocus);
    handle.Show();
    QVERIFY(QTest::qWaitForWindowExposed(handle.Imp()));
    handle.Imp()->activateWindow();
    handle.SetFocus();
    QTRY_VERIFY(handle.Imp()->hasFocus());
}

void tst_Widget::attributes_data()
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

void tst_Widget::attributes()
{
    QFETCH(QString, xml);
    QFETCH(int, intValue);
    QFETCH(bool, boolValue);
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QDomElement element = document.documentElement();
    StateWidget imp;
    QCOMPARE(imp.ReadInt(element, QStringLiteral("a"), 42), intValue);
    QCOMPARE(imp.ReadBool(element, QStringLiteral("a"), true), boolValue);
}

void tst_Widget::attributeWriters()
{
    StateWidget imp;
    imp.msTag = QStringLiteral("State");
    imp.miValue = -5;
    imp.mbFlag = true;
    QDomDocument document;
    QVERIFY(document.setContent(imp.SaveState()));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("value")), QStringLiteral("-5"));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("flag")), QStringLiteral("1"));
    imp.mbFlag = false;
    QVERIFY(document.setContent(imp.SaveState()));
    QCOMPARE(document.documentElement().attribute(QStringLiteral("flag")), QStringLiteral("0"));
}

void tst_Widget::stateFileKeepsOtherWidgetsStates()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));

    StateWidget options, layout, toolbar;
    options.miValue = 1;
    options.msNote = QStringLiteral("options");
    layout.miValue = 2;
    toolbar.miValue = 3;
    toolbar.mbFlag = true;
    QVERIFY(options.SaveState(path, QStringLiteral("Dialogs/Options")));
    QVERIFY(layout.SaveState(path, QStringLiteral("Dialogs/Layout")));
    QVERIFY(toolbar.SaveState(path, QStringLiteral("Toolbar")));

    options.miValue = 10;
    options.msNote = QStringLiteral("changed");
    QVERIFY(options.SaveState(path, QStringLiteral("/Dialogs//Options/")));

    const QDomDocument document = parse(path);
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("Root"));
    QCOMPARE(document.documentElement().elementsByTagName(QStringLiteral("Dialogs")).count(), 1);
    QCOMPARE(document.documentElement().elementsByTagName(QStringLiteral("Options")).count(), 1);

    StateWidget reader;
    QVERIFY(reader.LoadState(path, QStringLiteral("Dialogs/Layout")));
    QCOMPARE(reader.miValue, 2);
    QVERIFY(!reader.mbFlag);
    QVERIFY(reader.LoadState(path, QStringLiteral("Toolbar")));
    QCOMPARE(reader.miValue, 3);
    QVERIFY(reader.mbFlag);
    QVERIFY(reader.LoadState(path, QStringLiteral("Dialogs/Options")));
    QCOMPARE(reader.miValue, 10);
    QCOMPARE(reader.msNote, QStringLiteral("changed"));
    QCOMPARE(reader.msLoadedTag, QStringLiteral("Options"));
}

void tst_Widget::savingTwiceLeavesNoLeftovers()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    StateWidget imp;
    imp.msNote = QStringLiteral("first");
    QVERIFY(imp.SaveState(path, QStringLiteral("A/B")));
    // Something written by an older version of the widget must go too.
    QDomDocument document = parse(path);
    elementAt(document, {QStringLiteral("A"), QStringLiteral("B")})
        .setAttribute(QStringLiteral("stale"), QStringLiteral("x"));
    writeAll(path, document.toByteArray());

    imp.msNote = QStringLiteral("second");
    QVERIFY(imp.SaveState(path, QStringLiteral("A/B")));
    document = parse(path);
    const QDomElement element = elementAt(document, {QStringLiteral("A"), QStringLiteral("B")});
    QVERIFY(!element.hasAttribute(QStringLiteral("stale")));
    QCOMPARE(element.elementsByTagName(QStringLiteral("Note")).count(), 1);
    QCOMPARE(element.firstChildElement(QStringLiteral("Note")).text(), QStringLiteral("second"));
    QCOMPARE(element.attributes().count(), 2);

    // No temporary files stay behind in the folder.
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("state.xml")});
}

void tst_Widget::pathsWithoutPartsAreRejected_data()
{
    QTest::addColumn<QString>("nodePath");
    QTest::newRow("empty") << QString();
    QTest::newRow("slash") << QStringLiteral("/");
    QTest::newRow("slashes") << QStringLiteral("///");
}

void tst_Widget::pathsWithoutPartsAreRejected()
{
    QFETCH(QString, nodePath);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    const QByteArray original = "<Root><Other value=\"7\"/></Root>\n";
    writeAll(path, original);
    StateWidget imp;
    QVERIFY(!imp.SaveState(path, nodePath));
    QCOMPARE(readAll(path), original);
    QVERIFY(!imp.LoadState(path, nodePath));

    // A missing file is not created either.
    const QString missing = dir.filePath(QStringLiteral("missing.xml"));
    QVERIFY(!imp.SaveState(missing, nodePath));
    QVERIFY(!QFile::exists(missing));
}

void tst_Widget::brokenOrMissingFileIsReplacedOnSave_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("create");
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("not xml") << QByteArray("this is not xml at all") << true;
    QTest::newRow("truncated") << QByteArray("<Root><A value=\"1\"><B") << true;
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe<\x01", 5) << true;
}

void tst_Widget::brokenOrMissingFileIsReplacedOnSave()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, create);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    if (create)
        writeAll(path, content);

    StateWidget reader;
    if (create)
        QVERIFY(!reader.LoadState(path, QStringLiteral("A")));

    StateWidget imp;
    imp.miValue = 9;
    QVERIFY(imp.SaveState(path, QStringLiteral("A/B")));
    const QDomDocument document = parse(path);
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("Root"));
    QVERIFY(reader.LoadState(path, QStringLiteral("A/B")));
    QCOMPARE(reader.miValue, 9);
}

void tst_Widget::loadStateFailures()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    StateWidget imp;
    imp.miValue = 4;
    QVERIFY(!imp.LoadState(path, QStringLiteral("A")));
    QVERIFY(imp.SaveState(path, QStringLiteral("A/B")));

    StateWidget reader;
    reader.miValue = 77;
    QVERIFY(!reader.LoadState(path, QStringLiteral("A/C")));
    QVERIFY(!reader.LoadState(path, QStringLiteral("B")));
    QVERIFY(!reader.LoadState(dir.path(), QStringLiteral("A")));
    QCOMPARE(reader.miValue, 77);
    // The document element itself is not part of the path.
    QVERIFY(!reader.LoadState(path, QStringLiteral("Root/A/B")));
    QVERIFY(reader.LoadState(path, QStringLiteral("A")));
    QCOMPARE(reader.miValue, -1);
}

void tst_Widget::loadAcceptsAnyDocumentElement()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    writeAll(path, "<Settings><Panel value=\"12\" flag=\"1\"/><Keep x=\"1\"/></Settings>");
    StateWidget reader;
    QVERIFY(reader.LoadState(path, QStringLiteral("Panel")));
    QCOMPARE(reader.miValue, 12);
    QVERIFY(reader.mbFlag);

    // Saving keeps the document element's name and the other elements.
    reader.miValue = 13;
    QVERIFY(reader.SaveState(path, QStringLiteral("Panel")));
    const QDomDocument document = parse(path);
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("Settings"));
    QCOMPARE(elementAt(document, {QStringLiteral("Keep")}).attribute(QStringLiteral("x")), QStringLiteral("1"));
    QCOMPARE(elementAt(document, {QStringLiteral("Panel")}).attribute(QStringLiteral("value")), QStringLiteral("13"));
}

void tst_Widget::unwritableTargetFailsAndKeepsFile()
{
    QTemporaryDir dir;
    StateWidget imp;
    // A folder where the file should be, and a file in a folder that is missing.
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.xml")));
    QVERIFY(!imp.SaveState(dir.filePath(QStringLiteral("folder.xml")), QStringLiteral("A")));
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("folder.xml"))).isDir());
    QVERIFY(!imp.SaveState(dir.filePath(QStringLiteral("missing/state.xml")), QStringLiteral("A")));
}

void tst_Widget::stringFormRoundTrips()
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

void tst_Widget::stringFormOffWithoutNodeId()
{
    WidgetImp imp;
    QVERIFY(imp.SaveState().isNull());
    Widget handle;
    wchar_t buffer[16] = {L'x'};
    QCOMPARE(handle.SaveState(buffer, 16), 0);
    QCOMPARE(buffer[0], L'\0');
}

void tst_Widget::stringThatDoesNotParseIsRejected()
{
    StateWidget imp;
    imp.miValue = 5;
    QVERIFY(!imp.LoadState(QString()));
    QVERIFY(!imp.LoadState(QStringLiteral("<Open>")));
    QVERIFY(!imp.LoadState(QStringLiteral("no xml")));
    QCOMPARE(imp.miValue, 5);
    Widget handle;
    QVERIFY(!handle.LoadState(L""));
    QVERIFY(!handle.LoadState(static_cast<const wchar_t*>(nullptr)));
}

void tst_Widget::handleCopiesStringIntoBuffer()
{
    StateHandle handle;
    handle.Imp()->msTag = QStringLiteral("S");
    handle.Imp()->miValue = 8;
    const QString expected = handle.Imp()->SaveState();
    std::vector<wchar_t> buffer(expected.size() + 16, L'?');
    QCOMPARE(handle.SaveState(buffer.data(), int(buffer.size())), int(expected.size()));
    QCOMPARE(QString::fromWCharArray(buffer.data()), expected);

    QTemporaryDir dir;
    const std::wstring path = dir.filePath(QStringLiteral("handle.xml")).toStdWString();
    QVERIFY(handle.SaveState(path.c_str(), L"Handles/First"));
    StateHandle reader;
    QVERIFY(reader.LoadState(path.c_str(), L"Handles/First"));
    QCOMPARE(reader.Imp()->miValue, 8);
    QVERIFY(!reader.LoadState(path.c_str(), L"Handles/Second"));
}

QTEST_MAIN(tst_Widget)
#include "tst_widget.moc"
