#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/NumericField.h>

namespace Kavrel::UICore {

/// The line edit of DoubleSpinBox. Unlike the plain field it leaves Page Up and
/// Page Down to the normal handling, so that they reach the spin box's stepping.
class KVUICORE_EXPORT DoubleSpinBoxNumericField : public NumericField
{
    Q_OBJECT

public:
    /// A field for a DoubleSpinBox.
    explicit DoubleSpinBoxNumericField(QWidget* parent = nullptr);
    ~DoubleSpinBoxNumericField() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(DoubleSpinBoxNumericField)
};

} // namespace Kavrel::UICore
