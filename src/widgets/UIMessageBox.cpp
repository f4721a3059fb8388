#include <KvUICore/widgets/UIMessageBox_p.h>

#include <QAbstractButton>
#include <QCloseEvent>
#include <QGridLayout>
#include <QSpacerItem>

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
    if (mpWidthSpacer && mpSpacerLayout == layout()) {
        const QMargins margins = layout()->contentsMargins();
        mpWidthSpacer->changeSize(qMax(0, miRequestedWidth - margins.left() - margins.right()), 0, QSizePolicy::Minimum,
                                  QSizePolicy::Minimum);
        layout()->invalidate();
    }
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
    // QMessageBox sizes itself from its layout's minimum whenever the layout
    // changes, so the width goes in as a spacer across the whole grid. Added
    // here because setting texts or the icon rebuilds the layout. Wider than
    // the texts need is honoured; narrower would clip them.
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (mpSpacerLayout != grid)
        mpWidthSpacer = nullptr;
    if (miRequestedWidth > 0 && grid && !mpWidthSpacer) {
        mpSpacerLayout = grid;
        const QMargins margins = grid->contentsMargins();
        mpWidthSpacer = new QSpacerItem(qMax(0, miRequestedWidth - margins.left() - margins.right()), 0,
                                        QSizePolicy::Minimum, QSizePolicy::Minimum);
        grid->addItem(mpWidthSpacer, grid->rowCount(), 0, 1, grid->columnCount());
    }
    QMessageBox::showEvent(event);
}

} // namespace Kavrel::UICore
