#include <KvUICore/widgets/DoubleSpinBoxNumericField.h>

#include <QKeyEvent>
#include <QPointer>

namespace Kavrel::UICore {

DoubleSpinBoxNumericField::DoubleSpinBoxNumericField(QWidget* parent)
    : NumericField(parent)
{}

DoubleSpinBoxNumericField::~DoubleSpinBoxNumericField() = default;

void DoubleSpinBoxNumericField::keyPressEvent(QKeyEvent* event)
{
    QPointer<DoubleSpinBoxNumericField> self(this);
    QLineEdit::keyPressEvent(event);
    if (self)
        UpdateModified();
}

} // namespace Kavrel::UICore
