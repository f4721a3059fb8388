#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QMessageBox>
#include <QPointer>

class QSpacerItem;

namespace Kavrel::UICore {

// The QMessageBox that shows a KvMessageBoxImp.
class KVUICORE_EXPORT UIMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    explicit UIMessageBox(QWidget* parent = nullptr);
    ~UIMessageBox() override;

    // The width the box keeps at least; QMessageBox fits itself to its
    // texts when shown, so a plain resize would not last.
    void SetRequestedWidth(int width);
    int GetRequestedWidth() const;

protected:
    // Closing a plain OK box by its title bar counts as pressing OK.
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    int miRequestedWidth = 0;
    // Owned by the layout, which QMessageBox rebuilds when its texts change.
    QSpacerItem* mpWidthSpacer = nullptr;
    QPointer<QLayout> mpSpacerLayout;
};

} // namespace Kavrel::UICore
