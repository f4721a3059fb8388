// The current theme laid out in full: every colour, gradient, icon, image and
// metric key with its name and value, redrawn when the theme changes.
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeKeyCatalogue.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QCoreApplication>
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

// How the keys combine on the controls, painted from the theme alone: check
// boxes, fields, tool buttons, a menu, a rollout title, a slider and a title
// bar, each in its states.
class Specimen
{
public:
    static constexpr int kHeight = 150;

    static void Paint(QPainter& painter, const QRect& area, const QFont& font)
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        QFont small = font;
        small.setPointSizeF(font.pointSizeF() * 0.9);
        painter.setFont(small);
        const int x = area.left();
        const int y = area.top();

        // Check boxes: normal, checked, hovered, focused and checked, disabled.
        struct Box
        {
            const char* outline;
            const char* fill;
            const char* ring;
            bool checked;
            const char* label;
        };
        const Box boxes[] = {
            {"WidgetOutline9", "WidgetContainer9", nullptr, false, QT_TRANSLATE_NOOP("ThemePage", "Option")},
            {"WidgetOutline10", "WidgetContainer11", nullptr, true, QT_TRANSLATE_NOOP("ThemePage", "Checked")},
            {"HoverOutline7", "HoverContainer4", nullptr, false, QT_TRANSLATE_NOOP("ThemePage", "Hovered")},
            {"FocusOutline1", "HoverContainer5", "WidgetContainer11", true, QT_TRANSLATE_NOOP("ThemePage", "Focused")},
            {"WidgetOutlineDisable", "WidgetContainerDisable", nullptr, false,
             QT_TRANSLATE_NOOP("ThemePage", "Disabled")},
        };
        for (int i = 0; i < 5; ++i) {
            const Box& box = boxes[i];
            const QRect row(x, y + i * 24, 110, 24);
            const QRect indicator(row.left() + 4, row.top() + 5, 14, 14);
            if (box.ring) {
                painter.setPen(themes->GetColor(QString::fromLatin1(box.ring)));
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(indicator.adjusted(-1, -1, 0, 0));
            }
            const QRect fill = indicator.adjusted(1, 1, -1, -1);
            painter.fillRect(fill, themes->GetBrush(QString::fromLatin1(box.fill), fill));
            painter.setPen(themes->GetColor(QString::fromLatin1(box.outline)));
            painter.drawRect(indicator.adjusted(0, 0, -1, -1));
            if (box.checked) {
                painter.setRenderHint(QPainter::Antialiasing, true);
                painter.setPen(QPen(themes->GetColor(ThemeFileKey::CheckMark1), 2, Qt::SolidLine, Qt::RoundCap,
                                    Qt::RoundJoin));
                const QPointF tick[] = {{indicator.left() + 3.0, indicator.center().y() + 0.5},
                                        {indicator.left() + 6.0, indicator.bottom() - 3.0},
                                        {indicator.right() - 2.5, indicator.top() + 3.5}};
                painter.drawPolyline(tick, 3);
                painter.setRenderHint(QPainter::Antialiasing, false);
            }
            painter.setPen(themes->GetColor(i == 4 ? ThemeFileKey::FontColorDisabled : ThemeFileKey::FontNormal1));
            painter.drawText(row.adjusted(26, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                             ThemeSheetTr(box.label));
        }

        // Text fields: prompt, hovered, focused with its halo, disabled.
        struct Field
        {
            const char* background;
            const char* border;
            const char* inner;
            const char* text;
            const char* label;
        };
        const Field fields[] = {
            {"WidgetContainer9", "WidgetOutline3", nullptr, "FontSearchPrompt",
             QT_TRANSLATE_NOOP("ThemePage", "Search materials")},
            {"WidgetContainer12", "HoverOutline4", nullptr, "FontNormal1", QT_TRANSLATE_NOOP("ThemePage", "12.5 mm")},
            {"WidgetContainer12", "WidgetOutline6", "FocusOutline2", "FontNormal1",
             QT_TRANSLATE_NOOP("ThemePage", "Focused value")},
            {"WidgetContainerDisable", "WidgetOutlineDisable", nullptr, "FontColorDisabled",
             QT_TRANSLATE_NOOP("ThemePage", "Read only")},
        };
        for (int i = 0; i < 4; ++i) {
            const Field& field = fields[i];
            const QRect frame(x + 124, y + 2 + i * 30, 150, 24);
            painter.fillRect(frame, themes->GetBrush(QString::fromLatin1(field.background), frame));
            painter.setPen(themes->GetColor(QString::fromLatin1(field.border)));
            painter.drawRect(frame.adjusted(0, 0, -1, -1));
            if (field.inner) {
                painter.setPen(themes->GetColor(QString::fromLatin1(field.inner)));
                painter.drawRect(frame.adjusted(1, 1, -2, -2));
            }
            QFont fieldFont = small;
            fieldFont.setItalic(i == 0);
            painter.setFont(fieldFont);
            painter.setPen(themes->GetColor(QString::fromLatin1(field.text)));
            painter.drawText(frame.adjusted(6, 0, -6, 0), Qt::AlignLeft | Qt::AlignVCenter, ThemeSheetTr(field.label));
            painter.setFont(small);
        }

        // Tool buttons: idle, hovered, pressed; then a slider and a spin box's arrows.
        const char* const toolFill[] = {nullptr, "HoverContainer1", "ClickContainer1"};
        const char* const toolOutline[] = {nullptr, "HoverOutline1", "ClickOutline1"};
        const char* const toolIcon[] = {"EditorAddIdleIcon", "EditorAddHoverIcon", "EditorAddPressIcon"};
        for (int i = 0; i < 3; ++i) {
            const QRect button(x + 290 + i * 32, y + 2, 28, 24);
            const QRect inner = button.adjusted(2, 2, -2, -2);
            if (toolFill[i]) {
                painter.fillRect(inner, themes->GetBrush(QString::fromLatin1(toolFill[i]), inner));
                painter.setPen(themes->GetColor(QString::fromLatin1(toolOutline[i])));
                painter.drawRect(inner.adjusted(0, 0, -1, -1));
            }
            QIcon(themes->GetString(QString::fromLatin1(toolIcon[i])))
                .paint(&painter, QRect(button.center().x() - 7, button.center().y() - 7, 16, 16));
        }
        const QRect groove(x + 290, y + 36, 120, 18);
        painter.fillRect(groove, themes->GetBrush(ThemeFileKey::WidgetContainer5, groove));
        painter.setPen(themes->GetColor(ThemeFileKey::WidgetOutline4));
        painter.drawRect(groove.adjusted(0, 0, -1, -1));
        const QRect track(groove.left() + 3, groove.center().y() - 1, 70, 3);
        painter.fillRect(track, themes->GetBrush(ThemeFileKey::WidgetContainer4, track));
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(Qt::NoPen);
        painter.setBrush(themes->GetColor(ThemeFileKey::ControlActive1));
        const int hx = track.right();
        const QPointF top[] = {{hx - 4.0, groove.top() + 1.0}, {hx + 5.0, groove.top() + 1.0}, {hx + 0.5, groove.top() + 6.0}};
        const QPointF bottom[] = {{hx - 4.0, groove.bottom() + 0.0},
                                  {hx + 5.0, groove.bottom() + 0.0},
                                  {hx + 0.5, groove.bottom() - 5.0}};
        painter.drawPolygon(top, 3);
        painter.drawPolygon(bottom, 3);
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (int i = 0; i < 2; ++i) {
            const QRect arrow(x + 290 + 124, y + 36 + i * 9, 16, 9);
            painter.fillRect(arrow, themes->GetBrush(ThemeFileKey::WidgetContainer4, arrow));
            painter.setPen(themes->GetColor(i == 0 ? ThemeFileKey::HoverOutline6 : ThemeFileKey::WidgetOutline9));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(arrow.adjusted(0, 0, -1, -1));
            painter.setPen(Qt::NoPen);
            painter.setBrush(themes->GetColor(ThemeFileKey::Triangle2));
            const int cx = arrow.center().x();
            const QPoint up[] = {{cx - 3, arrow.bottom() - 2}, {cx + 4, arrow.bottom() - 2}, {cx, arrow.top() + 2}};
            const QPoint down[] = {{cx - 3, arrow.top() + 2}, {cx + 4, arrow.top() + 2}, {cx, arrow.bottom() - 2}};
            painter.drawPolygon(i == 0 ? up : down, 3);
            painter.setBrush(Qt::NoBrush);
        }

        // A rollout title with its disclosure triangle, and a palette title bar.
        const QRect rollout(x + 290, y + 64, 150, 24);
        painter.fillRect(rollout, themes->GetBrush(ThemeFileKey::RolloutContainerTitleBackgroundColor, rollout));
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setBrush(themes->GetColor(ThemeFileKey::Triangle));
        const QPointF disclosure[] = {{rollout.left() + 4.0, rollout.top() + 9.0},
                                      {rollout.left() + 14.0, rollout.top() + 9.0},
                                      {rollout.left() + 9.0, rollout.top() + 16.0}};
        painter.drawPolygon(disclosure, 3);
        painter.setBrush(Qt::NoBrush);
        painter.setRenderHint(QPainter::Antialiasing, false);
        QFont bold = small;
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(themes->GetColor(ThemeFileKey::FontNormal1));
        painter.drawText(rollout.adjusted(22, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         ThemeSheetTr(QT_TRANSLATE_NOOP("ThemePage", "Appearance")));
        const QRect title(x + 290, y + 96, 150, 20);
        QLinearGradient titleGradient(title.topLeft(), title.bottomLeft());
        titleGradient.setColorAt(0, themes->GetColor(ThemeFileKey::TitleBarTopColor));
        titleGradient.setColorAt(1, themes->GetColor(ThemeFileKey::TitleBarBottomColor));
        painter.fillRect(title, titleGradient);
        painter.setPen(themes->GetColor(ThemeFileKey::TitleBarTextColor));
        painter.drawText(title.adjusted(6, 0, -20, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         ThemeSheetTr(QT_TRANSLATE_NOOP("ThemePage", "Materials")));
        painter.setPen(QPen(themes->GetColor(ThemeFileKey::TitleBarCloseButtonColor), 1.5));
        painter.setRenderHint(QPainter::Antialiasing, true);
        const QPoint close(title.right() - 10, title.center().y());
        painter.drawLine(close + QPoint(-3, -3), close + QPoint(3, 3));
        painter.drawLine(close + QPoint(3, -3), close + QPoint(-3, 3));
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setFont(small);

        // A drop-down menu: group label, hovered item, checked item, separator, disabled item.
        const QRect menu(x + 460, y, 190, 6 + 4 * 20 + 3 + 20);
        painter.fillRect(menu, themes->GetColor(ThemeFileKey::DropDownMenuBackground));
        painter.setPen(themes->GetColor(ThemeFileKey::DropDownMenuBorderColor));
        painter.drawRect(menu.adjusted(0, 0, -1, -1));
        int itemY = menu.top() + 3;
        auto item = [&](const char* text, const char* background, const char* border, const char* color, bool check) {
            const QRect r(menu.left() + 1, itemY, menu.width() - 2, 20);
            if (background) {
                painter.fillRect(r, themes->GetBrush(QString::fromLatin1(background), r));
                if (border) {
                    painter.setPen(themes->GetColor(QString::fromLatin1(border)));
                    painter.drawRect(r.adjusted(0, 0, -1, -1));
                }
            }
            if (check)
                QIcon(themes->GetString(ThemeFileKey::CheckMarkIcon)).paint(&painter, QRect(r.left() + 3, r.top() + 2, 16, 16));
            painter.setPen(themes->GetColor(QString::fromLatin1(color)));
            painter.drawText(r.adjusted(7 + 16, 0, -4, 0), Qt::AlignLeft | Qt::AlignVCenter, ThemeSheetTr(text));
            itemY += 20;
        };
        item(QT_TRANSLATE_NOOP("ThemePage", "Units"), "DropDownGroupLabel", nullptr, "FontGroupHeader", false);
        item(QT_TRANSLATE_NOOP("ThemePage", "Millimetres"), nullptr, nullptr, "FontNormal3", true);
        item(QT_TRANSLATE_NOOP("ThemePage", "Centimetres"), "DropDownMenuHoverBackground", "DropDownMenuHoverBorder",
             "FontNormal3", false);
        item(QT_TRANSLATE_NOOP("ThemePage", "Inches"), nullptr, nullptr, "FontNormal3", false);
        painter.setPen(themes->GetColor(ThemeFileKey::DropDownMenuSeparator));
        painter.drawLine(menu.left() + 6, itemY + 1, menu.right() - 6, itemY + 1);
        itemY += 3;
        item(QT_TRANSLATE_NOOP("ThemePage", "Feet and inches"), nullptr, nullptr, "FontDisable", false);

        // The busy animation and the multi-size toggles at their design size.
        for (int i = 0; i < 6; ++i) {
            const QString frame = QStringLiteral("Rendering_%1").arg(1 + i * 4, 2, 10, QLatin1Char('0'));
            QIcon(themes->GetString(frame)).paint(&painter, QRect(x + 670 + i * 22, y + 6, 16, 16));
        }
        const char* const toggles[] = {"MiniButtonToggleOff", "MiniButtonToggleOffHover", "MiniButtonToggleOn",
                                       "MiniButtonToggleOnHover"};
        for (int i = 0; i < 4; ++i)
            painter.drawImage(QRect(x + 670 + i * 30, y + 36, 24, 24),
                              themes->GetImage(QString::fromLatin1(toggles[i]), QSize(24, 24)));
        painter.setPen(themes->GetColor(ThemeFileKey::FontActive1));
        QFont link = small;
        link.setUnderline(true);
        painter.setFont(link);
        painter.drawText(QRect(x + 670, y + 66, 160, 20), Qt::AlignLeft | Qt::AlignVCenter,
                         ThemeSheetTr(QT_TRANSLATE_NOOP("ThemePage", "Open the library")));
        painter.setFont(small);
        painter.setPen(themes->GetColor(ThemeFileKey::MissingTextColor));
        painter.drawText(QRect(x + 670, y + 88, 160, 20), Qt::AlignLeft | Qt::AlignVCenter,
                         ThemeSheetTr(QT_TRANSLATE_NOOP("ThemePage", "Missing texture")));
        painter.restore();
    }

private:
    static QString ThemeSheetTr(const char* text) { return QCoreApplication::translate("ThemePage", text); }
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
                         QCoreApplication::translate("ThemePage", "Theme \"%1\"").arg(themes->GetCurrentTheme()));
        painter.setFont(small);
        painter.setPen(dim);
        painter.drawText(QRect(kMargin, 34, width() - 2 * kMargin, 18), Qt::AlignLeft | Qt::AlignVCenter,
                         QCoreApplication::translate("ThemePage", "%1 keys. Hover a cell for its value.").arg(mKeyCount));

        const QRect specimenHeader(kMargin, kTop, width() - 2 * kMargin, 24);
        painter.fillRect(specimenHeader,
                         themes->GetBrush(ThemeFileKey::RolloutContainerTitleBackgroundColor, specimenHeader));
        painter.setFont(bold);
        painter.setPen(text);
        painter.drawText(specimenHeader.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter, QCoreApplication::translate("ThemePage", "Specimen"));
        Specimen::Paint(painter, QRect(kMargin, kTop + 30, width() - 2 * kMargin, Specimen::kHeight), normal);

        for (const auto& section : mSections) {
            if (section.second.empty())
                continue;
            const QRect header = mHeaders.value(int(section.first));
            painter.fillRect(header, themes->GetBrush(ThemeFileKey::RolloutContainerTitleBackgroundColor, header));
            painter.setFont(bold);
            painter.setPen(text);
            painter.drawText(header.adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter,
                             QCoreApplication::translate("ThemePage", SectionTitle(section.first)) + QStringLiteral("  (%1)").arg(section.second.size()));

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
        int y = kTop + 30 + Specimen::kHeight;
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
                entry.detail = QCoreApplication::translate("ThemePage", "multi-size icon");
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
    QScrollArea* area = NewPageArea(parent);
    area->setWidget(new ThemeSheet(area));
    return area;
});

} // namespace
