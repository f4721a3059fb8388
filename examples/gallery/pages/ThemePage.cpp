// The current theme laid out in full: every colour, gradient, icon, image and
// metric key with its name and value, redrawn when the theme changes.
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeKeyCatalogue.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>
#include <QHelpEvent>
#include <QIcon>
#include <QPainter>
#include <QScrollArea>
#include <QToolTip>

#include <map>

using namespace Kavrel::UICore;

namespace {

// Keys the embedded base file refers to; every theme defines them beside the catalogue.
const char* const kBaseFileKeys[] = {"ScrollBarBackground", "ScrollBarHandleNormalBackground",
                                     "ScrollBarHandleHoverBackground", "HScrollBarSubLine", "HScrollBarAddLine"};

enum class Section
{
    Colors,
    Gradients,
    MultiSizeIcons,
    Images,
    Values,
    Count,
};

const char* SectionTitle(Section section)
{
    switch (section) {
    case Section::Colors:
        return QT_TRANSLATE_NOOP("ThemePage", "Colours");
    case Section::Gradients:
        return QT_TRANSLATE_NOOP("ThemePage", "Gradients");
    case Section::MultiSizeIcons:
        return QT_TRANSLATE_NOOP("ThemePage", "Multi-size icons (16, 24, 32, 48, 64 pixels)");
    case Section::Images:
        return QT_TRANSLATE_NOOP("ThemePage", "Icons and images");
    case Section::Values:
        return QT_TRANSLATE_NOOP("ThemePage", "Metrics, switches and texts");
    case Section::Count:
        break;
    }
    return "";
}

struct Entry
{
    QString key;
    QString detail; // value as text, shown under the name and in the tool tip
    QString path;   // image path for images
    QRect rect;     // laid out cell
};

class ThemeSheet : public QWidget
{
public:
    explicit ThemeSheet(QWidget* parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        // The scroll area asks the size policy whether to use heightForWidth.
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, [this] { Refresh(); });
        Refresh();
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Layout(width, nullptr); }
    QSize sizeHint() const override { return QSize(900, Layout(900, nullptr)); }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip) {
            auto* help = static_cast<QHelpEvent*>(event);
            for (const auto& section : mSections) {
                for (const Entry& entry : section.second) {
                    if (entry.rect.contains(help->pos())) {
                        QToolTip::showText(help->globalPos(), entry.key + QLatin1Char('\n') + entry.detail, this,
                                           entry.rect);
                        return true;
                    }
                }
            }
            QToolTip::hideText();
            return true;
        }
        return QWidget::event(event);
    }

    void resizeEvent(QResizeEvent* event) override
    {
        Layout(width(), &mSections);
        QWidget::resizeEvent(event);
    }

    void paintEvent(QPaintEvent* event) override
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        QPainter painter(this);
        painter.fillRect(event->rect(), themes->GetBrush(ThemeFileKey::Container1, rect()));
        const QColor text = themes->GetColor(ThemeFileKey::FontNormal1);
        const QColor dim = themes->GetColor(ThemeFileKey::FontLight1);
        const QColor outline = themes->GetColor(ThemeFileKey::Outline2);
        const QFont normal = font();
        QFont small = normal;
        small.setPointSizeF(normal.pointSizeF() * 0.85);
        QFont bold = normal;
        bold.setBold(true);

        // Heading: the theme's name and what it is made of.
        painter.setPen(text);
        QFont title = bold;
        title.setPointSizeF(normal.pointSizeF() * 1.3);
        painter.setFont(title);
        painter.drawText(QRect(kMargin, 8, width() - 2 * kMargin, 26), Qt::AlignLeft | Qt::AlignVCenter,
                         tr("Theme \"%1\"").arg(themes->GetCurrentTheme()));
        painter.setFont(small);
        painter.setPen(dim);
        painter.drawText(QRect(kMargin, 34, width() - 2 * kMargin, 18), Qt::AlignLeft | Qt::AlignVCenter,
                         tr("%1 keys. Hover a cell for its value.").arg(mKeyCount));

        for (const auto& section : mSections) {
            if (section.second.empty())
                continue;
            const QRect header = mHeaders.value(int(section.first));
            painter.fillRect(header, themes->GetBrush(ThemeFileKey::RolloutContainerTitleBackgroundColor, header));
            painter.setFont(bold);
            painter.setPen(text);
            painter.drawText(header.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter,
                             tr(SectionTitle(section.first)) + QStringLiteral("  (%1)").arg(section.second.size()));

            for (const Entry& entry : section.second) {
                if (!entry.rect.intersects(event->rect()))
                    continue;
                QRect visual;
                switch (section.first) {
                case Section::Colors:
                case Section::Gradients: {
                    visual = QRect(entry.rect.left(), entry.rect.top() + 3, 30, entry.rect.height() - 6);
                    // A checkerboard under the swatch shows translucent colours for what they are.
                    painter.fillRect(visual, QBrush(dim, Qt::Dense6Pattern));
                    painter.fillRect(visual, themes->GetBrush(entry.key, visual));
                    painter.setPen(outline);
                    painter.drawRect(visual.adjusted(0, 0, -1, -1));
                    break;
                }
                case Section::MultiSizeIcons: {
                    int x = entry.rect.left();
                    for (int size : {16, 24, 32, 48, 64}) {
                        const QImage image = themes->GetImage(entry.key, QSize(size, size));
                        const QRect target(x, entry.rect.top() + (entry.rect.height() - 18 - size) / 2 + 2, size, size);
                        painter.drawImage(target, image);
                        x += size + 8;
                    }
                    visual = QRect(entry.rect.left(), entry.rect.top(), x - entry.rect.left() - 8, entry.rect.height());
                    break;
                }
                case Section::Images: {
                    visual = QRect(entry.rect.left(), entry.rect.top() + (entry.rect.height() - 16) / 2, 16, 16);
                    QIcon(entry.path).paint(&painter, visual);
                    break;
                }
                case Section::Values:
                case Section::Count:
                    visual = QRect(entry.rect.left(), entry.rect.top(), 0, entry.rect.height());
                    break;
                }
                const QRect label = section.first == Section::MultiSizeIcons
                                        ? QRect(entry.rect.left(), entry.rect.bottom() - 16, entry.rect.width(), 16)
                                        : entry.rect.adjusted(visual.width() + 8, 0, -4, 0);
                const bool twoLines = section.first == Section::Colors || section.first == Section::Gradients
                                      || section.first == Section::Values;
                painter.setFont(small);
                painter.setPen(text);
                const QFontMetrics metrics(small);
                if (twoLines) {
                    const QRect top(label.left(), label.top() + 2, label.width(), label.height() / 2 - 1);
                    const QRect bottom(label.left(), top.bottom(), label.width(), label.height() / 2 - 1);
                    painter.drawText(top, Qt::AlignLeft | Qt::AlignBottom,
                                     metrics.elidedText(entry.key, Qt::ElideRight, top.width()));
                    painter.setPen(dim);
                    painter.drawText(bottom, Qt::AlignLeft | Qt::AlignTop,
                                     metrics.elidedText(entry.detail, Qt::ElideMiddle, bottom.width()));
                } else {
                    painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                                     metrics.elidedText(entry.key, Qt::ElideRight, label.width()));
                }
            }
        }
    }

private:
    static constexpr int kMargin = 12;
    static constexpr int kColumnWidth = 212;
    static constexpr int kTop = 60;

    static int RowHeight(Section section)
    {
        switch (section) {
        case Section::Colors:
        case Section::Gradients:
        case Section::Values:
            return 32;
        case Section::MultiSizeIcons:
            return 88;
        case Section::Images:
        case Section::Count:
            break;
        }
        return 24;
    }

    static int ColumnWidth(Section section)
    {
        return section == Section::MultiSizeIcons ? 2 * kColumnWidth : kColumnWidth;
    }

    // Places every cell for the given width; returns the total height. Without
    // a target it only measures.
    int Layout(int width, std::map<Section, std::vector<Entry>>* target) const
    {
        std::map<Section, std::vector<Entry>> sections = mSections;
        QHash<int, QRect> headers;
        int y = kTop;
        for (auto& section : sections) {
            if (section.second.empty())
                continue;
            headers.insert(int(section.first), QRect(kMargin, y, qMax(0, width - 2 * kMargin), 24));
            y += 24 + 6;
            const int columnWidth = ColumnWidth(section.first);
            const int columns = qMax(1, (width - 2 * kMargin) / columnWidth);
            const int rowHeight = RowHeight(section.first);
            for (std::size_t i = 0; i < section.second.size(); ++i) {
                const int column = int(i) % columns;
                const int row = int(i) / columns;
                section.second[i].rect = QRect(kMargin + column * columnWidth, y + row * rowHeight, columnWidth - 8,
                                               rowHeight);
            }
            y += ((int(section.second.size()) + columns - 1) / columns) * rowHeight + 12;
        }
        if (target) {
            *target = sections;
            const_cast<ThemeSheet*>(this)->mHeaders = headers;
        }
        return y;
    }

    static QString ColorText(const QColor& color)
    {
        return color.alpha() == 255 ? color.name() : color.name(QColor::HexArgb);
    }

    void Refresh()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        // The first query loads the theme and announces it, which calls back
        // here: let that happen before the tables are rebuilt.
        themes->Exists(ThemeFileKey::Container1);
        mSections.clear();
        for (int s = 0; s < int(Section::Count); ++s)
            mSections[Section(s)];

        QStringList keys;
        std::size_t count = 0;
        const ThemeKeyEntry* catalogue = ThemeKeyCatalogue(&count);
        for (std::size_t i = 0; i < count; ++i)
            keys.append(QString::fromLatin1(catalogue[i].text));
        for (const char* key : kBaseFileKeys)
            keys.append(QString::fromLatin1(key));

        mKeyCount = 0;
        for (const QString& key : keys) {
            if (!themes->Exists(key))
                continue;
            ++mKeyCount;
            Entry entry;
            entry.key = key;
            const QBrush brush = themes->GetBrush(key, QRect(0, 0, 10, 10));
            if (const QGradient* gradient = brush.gradient()) {
                QStringList stops;
                for (const QGradientStop& stop : gradient->stops())
                    stops.append(ColorText(stop.second));
                entry.detail = stops.join(QStringLiteral(" \u2192 "));
                mSections[Section::Gradients].push_back(entry);
            } else if (brush.style() == Qt::SolidPattern) {
                entry.detail = ColorText(brush.color());
                mSections[Section::Colors].push_back(entry);
            } else if (!themes->GetImage(key, QSize(16, 16)).isNull()) {
                entry.detail = tr("multi-size icon");
                mSections[Section::MultiSizeIcons].push_back(entry);
            } else {
                const QString text = themes->GetString(key);
                if (text.startsWith(QLatin1String(":/")) || text.endsWith(QLatin1String(".svg"))
                    || text.endsWith(QLatin1String(".png"))) {
                    entry.path = text;
                    entry.detail = text;
                    mSections[Section::Images].push_back(entry);
                } else {
                    entry.detail = text.isEmpty() ? QString::number(themes->GetInt(key)) : text;
                    mSections[Section::Values].push_back(entry);
                }
            }
        }
        Layout(width() > 0 ? width() : 900, &mSections);
        updateGeometry();
        update();
    }

    std::map<Section, std::vector<Entry>> mSections;
    QHash<int, QRect> mHeaders;
    int mKeyCount = 0;
};

GalleryPageRegistration registration(100, QStringLiteral("Theme"), [](QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(new ThemeSheet(area));
    return area;
});

} // namespace
