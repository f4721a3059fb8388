// Every kind of message box the library shows, and the value Show returns.
#include "GalleryPage.h"

#include <KvUICore/widgets/KvMessageBox.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

using namespace Kavrel::UICore;

namespace {

struct BoxSample
{
    QString title;
    QString description;
    std::function<void(KvMessageBox&)> setUp;
};

QList<BoxSample> samples()
{
    return {
        {QStringLiteral("Information"), QStringLiteral("No buttons set: a single OK; closing counts as OK (1)."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"Export finished");
             box.SetIcon(KvMessageBox::IconInformation);
             box.SetMainInstruction(L"The drawing was exported.");
             box.SetContentText(L"12 sheets were written to the output folder.");
         }},
        {QStringLiteral("Question"), QStringLiteral("Yes and No, Escape answers No (2 or 4)."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"Replace file");
             box.SetIcon(KvMessageBox::IconQuestion);
             box.SetMainInstruction(L"A file with this name exists already.");
             box.SetContentText(L"Do you want to replace it?");
             box.SetStandardButtons(KvMessageBox::ButtonYes | KvMessageBox::ButtonNo);
             box.SetDefaultButton(KvMessageBox::ButtonNo);
             box.SetEscapeButton(KvMessageBox::ButtonNo);
         }},
        {QStringLiteral("Warning"), QStringLiteral("OK and Cancel with details (1 or 8)."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"Unsupported elements");
             box.SetIcon(KvMessageBox::IconWarning);
             box.SetMainInstruction(L"Some elements cannot be converted.");
             box.SetContentText(L"They will be left out of the result.");
             box.SetExpandedText(L"3 splines with more than 64 control points\n1 embedded image without a file");
             box.SetStandardButtons(KvMessageBox::ButtonOk | KvMessageBox::ButtonCancel);
             box.SetEscapeButton(KvMessageBox::ButtonCancel);
         }},
        {QStringLiteral("Retry or close"), QStringLiteral("Retry and Close (16 or 32)."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"Licence server");
             box.SetMainInstruction(L"The licence server does not answer.");
             box.SetStandardButtons(KvMessageBox::ButtonRetry | KvMessageBox::ButtonClose);
             box.SetDefaultButton(KvMessageBox::ButtonRetry);
         }},
        {QStringLiteral("Custom buttons"), QStringLiteral("Save (100, default), Don't save (101), Cancel (8)."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"Close drawing");
             box.SetIcon(KvMessageBox::IconQuestion);
             box.SetMainInstruction(L"Save the changes before closing?");
             box.AddButton(L"Save", 100);
             box.AddButton(L"Don't save", 101);
             box.SetStandardButtons(KvMessageBox::ButtonCancel);
             box.SetDefaultButton(100);
             box.SetEscapeButton(KvMessageBox::ButtonCancel);
         }},
        {QStringLiteral("Wide"), QStringLiteral("A width of 640 pixels, no icon."),
         [](KvMessageBox& box) {
             box.SetWindowTitle(L"About this page");
             box.SetMainInstruction(L"Message boxes can be given a width.");
             box.SetContentText(L"The box is at least as wide as asked; texts that need more keep their room.");
             box.SetWidth(640);
         }},
    };
}

class MessageBoxesPage : public QWidget
{
public:
    explicit MessageBoxesPage(QWidget* parent)
        : QWidget(parent)
    {
        auto* layout = new QVBoxLayout(this);
        auto* group = new QGroupBox(QStringLiteral("Message boxes"), this);
        auto* grid = new QGridLayout(group);
        int row = 0;
        for (const BoxSample& sample : samples()) {
            auto* button = new QPushButton(sample.title, group);
            grid->addWidget(button, row, 0);
            grid->addWidget(new QLabel(sample.description, group), row, 1);
            const auto setUp = sample.setUp;
            const QString title = sample.title;
            connect(button, &QPushButton::clicked, this, [this, setUp, title] { ShowBox(title, setUp); });
            ++row;
        }
        grid->setColumnStretch(1, 1);
        layout->addWidget(group);
        mpResult = new QLabel(QStringLiteral("Show returned: (nothing shown yet)"), this);
        mpResult->setObjectName(QStringLiteral("messageBoxResult"));
        layout->addWidget(mpResult);
        layout->addStretch(1);
    }

private:
    void ShowBox(const QString& title, const std::function<void(KvMessageBox&)>& setUp)
    {
        KvMessageBox box;
        setUp(box);
        // The box goes over the gallery window, found through its native handle.
        const HWND parent = Platform::HandleFromWId(window()->winId());
        const int result = box.Show(parent);
        mpResult->setText(QStringLiteral("Show returned: %1 (%2)").arg(result).arg(title));
    }

    QLabel* mpResult;
};

GalleryPageRegistration registration(600, QStringLiteral("Message boxes"),
                                     [](QWidget* parent) { return new MessageBoxesPage(parent); });

} // namespace
