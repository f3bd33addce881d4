#ifndef TRANSLATEMANAGER_H
#define TRANSLATEMANAGER_H

#include <QMap>
#include <QObject>
#include <QString>

// Knows the nine interface languages and tells widgets when the language changes.
// The translator itself belongs to the main window.
class TranslateManager : public QObject
{
    Q_OBJECT
public:
    enum LanguageType {
        English = 0,
        German = 1,
        Spanish = 2,
        French = 3,
        Italian = 4,
        Portuguese = 5,
        SimplifiedChinese = 6,
        TraditionalChinese = 7,
        Japanese = 8,
    };
    Q_ENUM(LanguageType)

    static TranslateManager* instance();

    void init();
    // Chooses the type for a locale name and a stored "app_lang" value (< 0: none stored).
    static int chooseLangType(const QString& localeName, int storedType);

    LanguageType getLangType() const { return static_cast<LanguageType>(m_langType); }
    void setLangType(LanguageType type) { m_langType = type; }

    static QString getShortNameByType(LanguageType type);
    QString getCurrentShortName() const;

    QMap<int, QString> getLangFileMap() const { return m_langFileMap; }
    QMap<int, QString> getLangNameMap() const { return m_langNameMap; }

signals:
    void notify(int type);

private:
    explicit TranslateManager(QObject* parent = nullptr);

    int m_langType = English;
    QMap<int, QString> m_langFileMap;
    QMap<int, QString> m_langNameMap;
};

#endif // TRANSLATEMANAGER_H
