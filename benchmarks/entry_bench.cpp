// Filling a drop-down, validating a typed name and painting a text box, each
// against the plain Qt widget or call that does the same job.
#include "BenchRatio.h"
#include "BenchTheme.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/TextBox.h>

#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QRegularExpression>

using namespace Kavrel::UICore;

namespace {

void ensureTheme()
{
    kvbench::UseRepositoryTheme();
}

QStringList itemTexts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << QStringLiteral("Item %1").arg(i);
    return texts;
}

void BM_DropDownFill(benchmark::State& state)
{
    ensureTheme();
    const QStringList texts = itemTexts(int(state.range(0)));
    for (auto _ : state) {
        DropDown dropDown;
        for (int i = 0; i < texts.size(); ++i)
            dropDown.AddItem(i % 4, texts.at(i), i);
        benchmark::DoNotOptimize(dropDown.Count());
    }
}
BENCHMARK(BM_DropDownFill)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

void BM_ComboBoxFill(benchmark::State& state)
{
    ensureTheme();
    const QStringList texts = itemTexts(int(state.range(0)));
    for (auto _ : state) {
        QComboBox comboBox;
        for (int i = 0; i < texts.size(); ++i)
            comboBox.addItem(texts.at(i), i);
        benchmark::DoNotOptimize(comboBox.count());
    }
}
BENCHMARK(BM_ComboBoxFill)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

const QString kTypedName = QStringLiteral(" Living room, north wall ");

void BM_TextBoxValidateText(benchmark::State& state)
{
    ensureTheme();
    TextBox box;
    box.TextValidationInitialize({QStringLiteral("too long"), QStringLiteral("forbidden")}, 64);
    QString out;
    QString error;
    for (auto _ : state)
        benchmark::DoNotOptimize(box.ValidateText(kTypedName, out, error));
}
BENCHMARK(BM_TextBoxValidateText);

void BM_RawRegularExpressionMatch(benchmark::State& state)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|;=`,]"));
    for (auto _ : state)
        benchmark::DoNotOptimize(forbidden.match(kTypedName).hasMatch());
}
BENCHMARK(BM_RawRegularExpressionMatch);

void BM_TextBoxPaint(benchmark::State& state)
{
    ensureTheme();
    TextBox box;
    box.resize(200, 24);
    box.SetText(QStringLiteral("Living room"));
    QImage image(box.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        box.render(&image);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_TextBoxPaint)->Unit(benchmark::kMicrosecond);

void BM_QLineEditPaint(benchmark::State& state)
{
    ensureTheme();
    QLineEdit edit;
    edit.resize(200, 24);
    edit.setText(QStringLiteral("Living room"));
    QImage image(edit.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        edit.render(&image);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_QLineEditPaint)->Unit(benchmark::kMicrosecond);

} // namespace

// Every drop-down item is a QAction in a QActionGroup and a menu, where a combo
// box keeps a model row: the goal allows for that object per item.
KVBENCH_RATIO("fill a DropDown with 100 items vs QComboBox", "BM_DropDownFill/100", "BM_ComboBoxFill/100", 15.0);
KVBENCH_RATIO("fill a DropDown with 1000 items vs QComboBox", "BM_DropDownFill/1000", "BM_ComboBoxFill/1000", 15.0);
KVBENCH_RATIO("TextBox::ValidateText vs one regular expression match", "BM_TextBoxValidateText",
              "BM_RawRegularExpressionMatch", 2.0);
KVBENCH_RATIO("paint a TextBox vs a QLineEdit", "BM_TextBoxPaint", "BM_QLineEditPaint", 2.0);

KVBENCH_MAIN()
