#include <KvUICore/widgets/DoubleSpinBoxNumericField.h>

#include <QKeyEvent>

namespace Kavrel::UICore {

DoubleSpinBoxNumericField::DoubleSpinBoxNumericField(QWidget* parent)
    : NumericField(parent)
{}

DoubleSpinBoxNumericField::~DoubleSpinBoxNumericField() = default;

void DoubleSpinBoxNumericField::keyPressEvent(QKeyEvent* event)
{
    QLineEdit::keyPressEvent(event);
    UpdateModified();
}

} // namespace Kavrel::UICore
