#ifndef LANGUAGEITEM_H
#define LANGUAGEITEM_H

#include <QString>

namespace Language {

// A language offered for automatic captions.
class LanguageItem
{
public:
    LanguageItem(const QString& name, const QString& code, int key)
        : name(name)
        , code(code)
        , key(key)
    {
    }

    QString name; // translatable source text
    QString code; // sent to the speech service, names the working files
    int key;      // stored under "ai_caption_lang"
};

} // namespace Language

#endif // LANGUAGEITEM_H
