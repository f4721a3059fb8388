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
/// which limit it broke. An icon gives at most 64 images of 64 MiB decoded in
/// all, and decoded icons are cached up to 256 MiB.
class KVUICORE_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    /// The process-wide manager, created on first use.
    static ThemeManager* GetInstance();

    /// Whether the current theme or the base values define the key.
    bool Exists(const QString& key);
    /// The colour of the key; an invalid colour when it is missing or holds no colour.
    QColor GetColor(const QString& key);
    /// A colour as a solid brush; a gradient running from the top to the
    /// bottom of rect.
    QBrush GetBrush(const QString& key, const QRect& rect);
    /// The image of an icon whose size equals size, else the narrowest one.
    QImage GetImage(const QString& key, const QSize& size);
    /// The integer of the key; 0 when it is missing.
    int GetInt(const QString& key);
    /// The size of the key; an invalid size when it is missing.
    QSize GetSize(const QString& key);
    /// The text of the key; empty when it is missing.
    QString GetString(const QString& key);
    /// The style sheet of the key; empty when it is missing.
    QString GetStyleSheet(const QString& key);

    /// The name of the current theme; empty while none has loaded.
    QString GetCurrentTheme();
    /// "Light", "Dark" or "HIGLight" (any case); false for an unknown theme or
    /// one whose file is not found, leaving everything as it was. A file that
    /// fails to load is reported and returns false too, and then also leaves
    /// everything as it was: the values of the theme that was current stay, so
    /// the host always has a whole theme (safer than clearing every table and
    /// keeping what the broken file held).
    bool SetCurrentTheme(const QString& name);

    /// Reads a theme file over the current values: as values of the theme when asTheme,
    /// else as base values that theme values hide. False, with a message naming the line
    /// and column, for a file that fails to parse or breaks a limit.
    bool LoadThemeFile(QFile& file, bool asTheme);
    /// Reads the theme file at path, as the QFile overload; false, with a message, when
    /// the file can't be read.
    bool LoadThemeFile(const QString& path, bool asTheme);
    /// Asks the user for a theme file and loads it over the current values.
    void LoadTheme(QWidget* widget);
    /// True while LoadTheme repaints the widget after loading a file.
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
    /// Whether the application palette follows the theme (see
    /// SetApplicationPaletteFollowsTheme).
    bool IsApplicationPaletteFollowingTheme() const;

    /// Adds a folder in front of the theme file search list.
    void SetThemeFilesPath(const wchar_t* directory);
    /// Copies the first folder of the search list into the buffer, cut to fit and
    /// terminated; returns the number of characters copied.
    int GetThemeFilesPath(wchar_t* buffer, int capacity);

    ~ThemeManager() override;

Q_SIGNALS:
    /// The current theme changed from oldTheme to newTheme; the library's controls
    /// repaint on it.
    void ThemeChanged(const QString& oldTheme, const QString& newTheme);

private:
    ThemeManager();
    Q_DISABLE_COPY_MOVE(ThemeManager)

    friend class ThemeManagerImp;
    std::unique_ptr<ThemeManagerImp> const mpImp;
};

} // namespace Kavrel::UICore
