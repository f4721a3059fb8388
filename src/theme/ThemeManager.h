#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QObject>
#include <QPalette>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>

class QFile;
class QWidget;

namespace Kavrel::UICore {

class ThemeManagerImp;

/// The process-wide source of themed values. Keys are the ThemeFileKey texts;
/// a missing key never fails but gives the empty value of its getter. The
/// current theme ("Light" unless set otherwise) loads on the first query; while
/// no theme is current, every query tries (and reports a failure) again.
///
/// Theme files and the icon files they name are read only when they are
/// regular files (never a FIFO, device or folder) of at most 8 MiB. A $(Name)
/// reference expands at most 4,096 times per value, a value grows to at most
/// 1 Mi characters, and the expansions of one file insert at most 16 Mi
/// characters; a file beyond these limits fails to load with a message saying
/// which limit it broke.
class KVUICORE_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    static ThemeManager* GetInstance();

    bool Exists(const QString& key);
    QColor GetColor(const QString& key);
    /// A colour as a solid brush; a gradient running from the top to the
    /// bottom of rect.
    QBrush GetBrush(const QString& key, const QRect& rect);
    /// The image of an icon whose size equals size, else the narrowest one.
    QImage GetImage(const QString& key, const QSize& size);
    int GetInt(const QString& key);
    QSize GetSize(const QString& key);
    QString GetString(const QString& key);
    QString GetStyleSheet(const QString& key);

    QString GetCurrentTheme();
    /// "Light", "Dark" or "HIGLight" (any case); false for an unknown theme or
    /// one whose file is not found, leaving everything as it was. A file that
    /// fails to load is reported and returns false too, and then also leaves
    /// everything as it was: the values of the theme that was current stay, so
    /// the host always has a whole theme (safer than clearing every table and
    /// keeping what the broken file held).
    bool SetCurrentTheme(const QString& name);

    bool LoadThemeFile(QFile& file, bool asTheme);
    bool LoadThemeFile(const QString& path, bool asTheme);
    /// Asks the user for a theme file and loads it over the current values.
    void LoadTheme(QWidget* widget);
    bool UpdateSkinNeeded();

    /// The current theme as a palette for a host's own widgets: window, base,
    /// text, button, highlight, tool tip, link and placeholder roles in every
    /// colour group, with the disabled group's texts in the theme's disabled
    /// text colour.
    QPalette GetPalette();
    /// Opt-in: makes GetPalette() the application palette now and after every
    /// theme switch, so a host's plain windows match the library's controls.
    /// Turning it off gives the application back the palette it had before.
    void SetApplicationPaletteFollowsTheme(bool follow);
    bool IsApplicationPaletteFollowingTheme() const;

    /// Adds a folder in front of the theme file search list.
    void SetThemeFilesPath(const wchar_t* directory);
    int GetThemeFilesPath(wchar_t* buffer, int capacity);

    ~ThemeManager() override;

Q_SIGNALS:
    void ThemeChanged(const QString& oldTheme, const QString& newTheme);

private:
    ThemeManager();
    Q_DISABLE_COPY_MOVE(ThemeManager)

    friend class ThemeManagerImp;
    std::unique_ptr<ThemeManagerImp> const mpImp;
};

} // namespace Kavrel::UICore
