#ifndef CAPTIONMANAGER_H
#define CAPTIONMANAGER_H

#include "captioninfo.h"
#include "captionstyle.h"
#include "languageitem.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QFile;
class QTextStream;

// The caption list of the open video, its styles, the recognition language and
// the working files (extracted audio, raw service reply, working ASS file).
struct CaptionFileContent;

class CaptionManager : public QObject
{
    Q_OBJECT
public:
    static CaptionManager* instance();
    // Registers every value type that travels in queued signals and bus events:
    // the caption records, then the core's types.
    static void registerMetaTypes();

    void initLang();
    QList<Language::LanguageItem*> getLangItems() const { return m_langItems; }

    double getCurrentTime() const { return m_currentTime; }
    void setCurrentTime(double ms) { m_currentTime = ms; }

    void setVideoFilePath(const QString& path) { m_videoFilePath = path; }
    QString getVideoFilePath() const { return m_videoFilePath; }
    void setAudioFilePath(const QString& path) { m_audioFilePath = path; }
    void setCaptionPath(const QString& path) { m_captionPath = path; }
    QString getAssFilePath() const { return m_assFilePath; }

    QString getAudioFilePath() const;
    QString getCaptionPath() const;
    QString getTempAssFilePath() const;

    Language::LanguageItem* getCurrentLangItem() const { return m_currentLangItem; }
    void setCurrentLangItem(Language::LanguageItem* item);
    void setCurrentLangItem(int key);
    Language::LanguageItem* getLangItemByKey(int key) const;
    int getLangItemIndexByKey(int key) const;

    QList<CaptionInfo*> getCaptions() const { return m_captions; }
    QList<CaptionStyle*> getStyles() const { return m_styles; }
    QStringList getFileLines() const { return m_fileLines; }
    CaptionInfo* getCaptionDataByIndex(int index) const;
    // Empties the list; the records are freed (aboutToReplaceCaptions first).
    void clearCaptions();
    // The manager owns every record: the old ones are freed, the new ones adopted.
    void replaceCaptions(const QList<CaptionInfo*>& captions);
    // Hands the records to the caller (an undo step, say) instead of freeing them.
    QList<CaptionInfo*> takeCaptions();
    int getMaxTextWidth() const;
    int getDigits() const { return 0; }

    // ASS writer
    bool createCaptions(const QByteArray& json, bool save);
    static QString formatAssTime(int ms);
    static int parseAssTime(const QString& text);
    static CaptionStyle* parseStyleLine(const QString& line);
    static QString formatStyleLine(const CaptionStyle& style);

    // Loading
    int loadCaptionFile(const QString& path);
    // loadCaptionFile in two halves, so that the reading can run on another
    // thread: the file loadCaptionFile(path) reads, then the records taken in
    // (GUI thread) with loadCaptionFile's result.
    QString pathToLoad(const QString& path) const;
    int finishLoad(const QString& path, CaptionFileContent content);

    // Saving: the format follows the suffix (.srt or .ass). False, with
    // lastError() naming the reason, when nothing was written.
    bool saveCaptionFile(const QString& path);
    // The captions as a subtitle file of that format ("srt" or "ass"): ASS
    // keeps the styles and each caption's override block, SRT plain lines.
    QString captionFileText(const QString& format) const;

    // Why the latest subtitle load, SRT conversion or save gave the user nothing
    // new (unreadable file, no captions, ffmpeg missing or failing); empty when it
    // went well. loadCaptionFile(path) starts afresh unless path is the file the
    // conversion reported on; loadCaptionFile("") keeps the conversion's message.
    QString lastError() const { return m_lastError; }
    void setLastError(const QString& text, const QString& forPath = QString());

    // Editing
    void changeCaption(CaptionInfo* info);
    void changeCaptionNew(CaptionInfo* info, bool isAll);
    CaptionInfo* insertCaptionInfo(double time, double duration);
    // Takes over these records and styles (an undo step), writes shownText, or
    // the records when it is empty, to the working file and announces it with
    // "update_caption".
    void restoreState(const QList<CaptionInfo*>& captions, const QList<CaptionStyle*>& styles,
                      const QStringList& fileLines, const QString& assFilePath, const QByteArray& shownText,
                      const QString& allOverride);
    // The override block of the latest edit applied to all captions, while
    // every event still carries it; empty otherwise.
    QString allOverride() const { return m_allOverride; }

signals:
    // The caption records are about to be freed or handed over: drop every
    // pointer to them now.
    void aboutToReplaceCaptions();
    // A caption was added to the list (the records kept their order).
    void captionInserted(CaptionInfo* info);

private:
    explicit CaptionManager(QObject* parent = nullptr);
    QString workingFilePath(const QString& suffix) const;
    bool openWorkingFile(QFile& file, const char* failureLog) const;
    void reportLoadError(const QString& text);
    // Header, styles and events of the list; allBlock, when set, overrides every event.
    // withHidden: texts the user hid are written too (a saved file keeps them).
    void writeRegenerated(QTextStream& out, const QString& allBlock, bool withHidden = false) const;

    QList<CaptionInfo*> m_captions;
    QList<CaptionStyle*> m_styles;
    double m_currentTime = -1.0;
    QString m_videoFilePath;
    QString m_audioFilePath;
    QString m_captionPath;
    QStringList m_fileLines;
    QString m_assFilePath;
    Language::LanguageItem* m_currentLangItem = nullptr;
    QList<Language::LanguageItem*> m_langItems;
    QString m_lastError;
    QString m_errorPath;
    QString m_allOverride;
};

// A change of a caption's tick or show state takes effect at the next regeneration.
void updateCaptionByCheck(CaptionInfo* info);

#endif // CAPTIONMANAGER_H
