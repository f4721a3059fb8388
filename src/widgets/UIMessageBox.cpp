#include <KvUICore/widgets/UIMessageBox_p.h>

#include <QAbstractButton>
#include <QCloseEvent>

namespace Kavrel::UICore {

UIMessageBox::UIMessageBox(QWidget* parent)
    : QMessageBox(parent)
{
}

UIMessageBox::~UIMessageBox() = default;

void UIMessageBox::SetRequestedWidth(int width)
{
    miRequestedWidth = qMax(0, width);
    if (miRequestedWidth > 0)
        resize(miRequestedWidth, height());
}

int UIMessageBox::GetRequestedWidth() const
{
    return miRequestedWidth;
}

void UIMessageBox::closeEvent(QCloseEvent* event)
{
    QMessageBox::closeEvent(event);
    if (standardButtons() == QMessageBox::Ok) {
        if (QAbstractButton* ok = button(QMessageBox::Ok))
            ok->click();
    }
}

void UIMessageBox::showEvent(QShowEvent* event)
{
    QMessageBox::showEvent(event);
    // Wider than the texts need is honoured; narrower would clip them.
    if (miRequestedWidth > width())
        setFixedSize(miRequestedWidth, height());
}

} // namespace Kavrel::UICore
