// Every colour and gradient key of the current theme, as a swatch with its name.
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeKeyCatalogue.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QPainter>
#include <QScrollArea>

using namespace Kavrel::UICore;

namespace {

class SwatchGrid : public QWidget
{
public:
    explicit SwatchGrid(QWidget* parent)
        : QWidget(parent)
    {
        connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, [this] { Refresh(); });
        Refresh();
    }

    QSize sizeHint() const override
    {
        const int columns = qMax(1, (width() > 0 ? width() : 860) / kCellWidth);
        const int rows = (int(mKeys.size()) + columns - 1) / columns;
        return QSize(columns * kCellWidth, rows * kCellHeight);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        const int columns = qMax(1, width / kCellWidth);
        return ((int(mKeys.size()) + columns - 1) / columns) * kCellHeight;
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        ThemeManager* themes = ThemeManager::GetInstance();
        const QColor text = themes->GetColor(QStringLiteral("FontNormal1"));
        const QColor outline = themes->GetColor(QStringLiteral("Outline1"));
        const int columns = qMax(1, width() / kCellWidth);
        QFont small = font();
        small.setPointSizeF(small.pointSizeF() * 0.85);
        painter.setFont(small);
        for (int i = 0; i < mKeys.size(); ++i) {
            const QRect cell((i % columns) * kCellWidth, (i / columns) * kCellHeight, kCellWidth, kCellHeight);
            const QRect swatch(cell.left() + 4, cell.top() + 4, 28, kCellHeight - 8);
            painter.fillRect(swatch, themes->GetBrush(mKeys.at(i), swatch));
            painter.setPen(outline);
            painter.drawRect(swatch.adjusted(0, 0, -1, -1));
            painter.setPen(text);
            painter.drawText(cell.adjusted(38, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft,
                             painter.fontMetrics().elidedText(mKeys.at(i), Qt::ElideRight, cell.width() - 42));
        }
    }

private:
    static constexpr int kCellWidth = 215;
    static constexpr int kCellHeight = 30;

    void Refresh()
    {
        mKeys.clear();
        ThemeManager* themes = ThemeManager::GetInstance();
        std::size_t count = 0;
        const ThemeKeyEntry* entries = ThemeKeyCatalogue(&count);
        for (std::size_t i = 0; i < count; ++i) {
            const QString key = QString::fromLatin1(entries[i].text);
            if (themes->GetBrush(key, QRect(0, 0, 10, 10)).style() != Qt::NoBrush)
                mKeys.append(key);
        }
        updateGeometry();
        update();
    }

    QStringList mKeys;
};

GalleryPageRegistration registration(900, QStringLiteral("Colour swatches"), [](QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(new SwatchGrid(area));
    return area;
});

} // namespace
