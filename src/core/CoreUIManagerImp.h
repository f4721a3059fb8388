#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>
#include <QTranslator>

#include <cstdint>

namespace Kavrel::UICore {

class CoreUIManager;
class IMessageBoxProvider;

// One translation base name and the file last loaded for it.
class Translator : public QTranslator
{
public:
    explicit Translator(const QString& baseName);
    ~Translator() override;

    bool mbLoaded = false;
    QString msBaseName;
    QString msSecondBaseName;
    QString msLoadedFile;
};

class KVUICORE_EXPORT CoreUIManagerImp
{
public:
    explicit CoreUIManagerImp(CoreUIManager* owner);
    ~CoreUIManagerImp();

    static CoreUIManagerImp* Get(CoreUIManager* manager);

    void InstallQtTranslators();
    void ReloadTranslator(Translator* translator);
    void ReloadTranslators();
    void ReleaseProvider();

    CoreUIManager* mpOwner;
    IMessageBoxProvider* mpMessageBoxProvider = nullptr;
    std::int32_t miMessageBoxStyle = 0;
    QString msCurrentLocale;
    bool mbLocaleSet = false;
    const char* mpThreeLetterLanguageName = nullptr;
    QMap<QString, Translator*> mTranslators;
    QString msTranslatorFilesPath;
    std::uint32_t muLCID = 0;
    QHash<QString, QPair<QString, QString>> mLanguageTable;
    bool mbGlobalStyleSheetApplied = false;
};

} // namespace Kavrel::UICore
