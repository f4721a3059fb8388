#pragma once

#include <QWidget>

class QComboBox;
class QListWidget;
class QStackedWidget;
class QFrame;
class QLabel;

// The gallery's main window: a theme switcher, a list of pages and the page.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    int PageCount() const;
    QString PageTitle(int index) const;
    void ShowPage(int index);
    QWidget* PageWidget(int index) const;
    // Switches to a built-in theme and updates the switcher to match.
    bool SwitchTheme(const QString& theme);

private:
    void OnThemeChosen(int index);
    void OnThemeChanged();

    QComboBox* mpThemeBox = nullptr;
    QListWidget* mpPageList = nullptr;
    QStackedWidget* mpPages = nullptr;
    QLabel* mpTitle = nullptr;
    QFrame* mpHeaderRule = nullptr;
};
