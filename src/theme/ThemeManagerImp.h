#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/theme/ThemeFileReader_p.h>

#include <QBrush>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <map>

class QFile;

namespace Kavrel::UICore {

class ThemeManager;

class KVUICORE_EXPORT ThemeManagerImp : public QObject
{
    Q_OBJECT

public:
    explicit ThemeManagerImp(ThemeManager* owner);
    ~ThemeManagerImp() override;

    const QVariant* Find(const QString& key);
    void EnsureTheme();
    QString LocateThemeFile(const QString& fileName) const;
    bool SetCurrentTheme(const QString& name);
    bool LoadThemeFile(QFile& file, bool asTheme);
    bool LoadThemeFile(const QString& path, bool asTheme);
    void ClearTables();

    // The built-in themes, by name.
    static const std::map<QString, QString>& BuiltInThemes();

    ThemeManager* mpOwner;
    QString msCurrentTheme;
    std::map<QString, QString> mThemeRegistry;
    QStringList mSearchDirectories;
    bool mbRepaintInProgress = false;
    Internal::ThemeValueTable mThemeValues;
    Internal::ThemeValueTable mBaseValues;
    // Guards against a theme file that refers to values while it is loaded.
    bool mbSwitching = false;
    // Solid brushes of colour entries, by entry; emptied whenever entries change.
    QHash<const QVariant*, QBrush> mSolidBrushes;

Q_SIGNALS:
    void ThemeChanged(const QString& oldTheme, const QString& newTheme);
};

// Shut-down reaches the singleton through these, without creating it.
KVUICORE_EXPORT bool ThemeManagerInstanceExists();
KVUICORE_EXPORT void DestroyThemeManagerInstance();

} // namespace Kavrel::UICore
