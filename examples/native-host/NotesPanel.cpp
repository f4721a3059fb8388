#include "NotesPanel.h"

#include <KvUICore/widgets/WidgetImp.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>

namespace {

// The Qt side of the panel: a few settings and the state they persist.
class NotesPanelImp : public WidgetImp
{
public:
    explicit NotesPanelImp(HWND parentWindow)
        : WidgetImp(parentWindow)
    {
        auto* form = new QFormLayout(this);
        mpTitle = new QLineEdit(this);
        mpTitle->setPlaceholderText(QStringLiteral("Sheet title"));
        mpSpacing = new QSpinBox(this);
        mpSpacing->setRange(1, 500);
        mpSpacing->setSuffix(QStringLiteral(" mm"));
        mpSpacing->setValue(10);
        mpSnap = new QCheckBox(QStringLiteral("Snap to grid"), this);
        form->addRow(QStringLiteral("Title"), mpTitle);
        form->addRow(QStringLiteral("Grid spacing"), mpSpacing);
        form->addRow(QString(), mpSnap);
    }

protected:
    void LoadState(QDomElement& element) override
    {
        mpSnap->setChecked(GetBoolAttribute(element, QStringLiteral("snap"), false));
        mpSpacing->setValue(GetIntAttribute(element, QStringLiteral("spacing"), 10));
        mpTitle->setText(element.firstChildElement(QStringLiteral("Title")).text());
    }

    void SaveState(QDomElement& element) const override
    {
        SetBoolAttribute(element, QStringLiteral("snap"), mpSnap->isChecked());
        SetIntAttribute(element, QStringLiteral("spacing"), mpSpacing->value());
        QDomDocument document = element.ownerDocument();
        QDomElement title = document.createElement(QStringLiteral("Title"));
        title.appendChild(document.createTextNode(mpTitle->text()));
        element.appendChild(title);
    }

    QString StateNodeId() const override { return QStringLiteral("NotesPanel"); }

private:
    QLineEdit* mpTitle;
    QSpinBox* mpSpacing;
    QCheckBox* mpSnap;
};

} // namespace

NotesPanel::NotesPanel(HWND parentWindow)
    : Widget(new NotesPanelImp(parentWindow))
{
}
