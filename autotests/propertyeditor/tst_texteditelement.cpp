#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/TextEditElement.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/TextEdit.h>

#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

// The object the page is bound to.
class Note : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY Changed)

public:
    QString GetText() const { return msText; }
    void SetText(const QString& text)
    {
        ++miWrites;
        if (text == msText)
            return;
        msText = text;
        Q_EMIT Changed();
    }

    QString msText = QStringLiteral("Rough sawn oak.");
    int miWrites = 0;

Q_SIGNALS:
    void Changed();
};

class tst_TextEditElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CoreUIManager::Initialize(nullptr);
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void editorFollowsTheSourceAndWritesBackOnCommit()
    {
        Note note;
        QList<QWidget*> owned;
        auto cleanup = qScopeGuard([&] { qDeleteAll(owned); });
        auto* editor = Probe::ShownWithOther<PropertyEditor>(owned, QSize(400, 400));
        QVERIFY(editor);
        editor->SetContextObject(&note);
        QVERIFY(editor->LoadUI(QStringLiteral("<E><PageElement><GroupElement Id=\"g\" Label=\"Notes\">"
                                              "<TextEditElement Id=\"n\" Label=\"Notes\" Text=\"Binding(Text)\"/>"
                                              "</GroupElement></PageElement></E>")));
        editor->grab(); // builds the page now
        auto* element = qobject_cast<TextEditElement*>(editor->FindElement(QStringLiteral("n")));
        QVERIFY(element);
        auto* edit = qobject_cast<TextEdit*>(element->GetWidget());
        QVERIFY(edit);
        QCOMPARE(edit->GetText(), note.msText);

        note.SetText(QStringLiteral("Planed walnut."));
        QCOMPARE(edit->GetText(), QStringLiteral("Planed walnut."));

        QSignalSpy modified(editor, &PropertyEditor::PropertyModified);
        const int writes = note.miWrites;
        QVERIFY(Probe::Focus(edit));
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, QStringLiteral(" Oiled."));
        // A paragraph is one change: nothing is written while typing.
        QCOMPARE(note.miWrites, writes);
        editor->window()->findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
        QTRY_COMPARE(note.GetText(), QStringLiteral("Planed walnut. Oiled."));
        QCOMPARE(note.miWrites, writes + 1);
        QCOMPARE(modified.count(), 1);
        QCOMPARE(modified.first().at(1).toString(), QStringLiteral("Text"));
    }

    void literalTextNeedsNoSource()
    {
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(
            QStringLiteral("<E><PageElement><GroupElement Id=\"g\" Label=\"G\">"
                           "<TextEditElement Id=\"n\" Text=\"Fixed text\"/></GroupElement></PageElement></E>")));
        editor.grab();
        auto* element = qobject_cast<TextEditElement*>(editor.FindElement(QStringLiteral("n")));
        QVERIFY(element);
        QCOMPARE(element->GetText(), QStringLiteral("Fixed text"));
        QCOMPARE(qobject_cast<TextEdit*>(element->GetWidget())->GetText(), QStringLiteral("Fixed text"));
        element->SetText(QStringLiteral("Changed"));
        QCOMPARE(qobject_cast<TextEdit*>(element->GetWidget())->GetText(), QStringLiteral("Changed"));
    }
};

QTEST_MAIN(tst_TextEditElement)
#include "tst_texteditelement.moc"
