#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QProgressBar>

namespace Kavrel::UICore {

/// A progress bar painted by CustomStyle, its text in the theme's "FontNormal1",
/// enabled or not.
class KVUICORE_EXPORT ProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    /// A progress bar painted from the theme.
    explicit ProgressBar(QWidget* parent = nullptr);
    ~ProgressBar() override;

private Q_SLOTS:
    void OnThemeChanged();

private:
    Q_DISABLE_COPY_MOVE(ProgressBar)
};

} // namespace Kavrel::UICore
