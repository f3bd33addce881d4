#include "captionmanager.h"

#include "appconfig.h"
#include "assreader.h"
#include "asstime.h"
#include "asswriter.h"
#include "captionfilereader.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "speechreply.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QStringView>
#include <QTextStream>

#include <limits>

namespace {
const QString kStyleAll = QStringLiteral("StyleAll");

int clampToInt(qint64 value)
{
    return static_cast<int>(qBound<qint64>(0, value, std::numeric_limits<int>::max()));
}
} // namespace

CaptionManager* CaptionManager::instance()
{
    static CaptionManager* s_instance = new CaptionManager();
    return s_instance;
}

void CaptionManager::registerMetaTypes()
{
    qRegisterMetaType<CaptionInfo>("CaptionInfo");
    qRegisterMetaType<CaptionEdit>("CaptionEdit");
    AppConfig::registerMetaTypes();
    qRegisterMetaType<CaptionInfo*>("CaptionInfo *");
}

CaptionManager::CaptionManager(QObject* parent)
    : QObject(parent)
{
    initLang();
}

void CaptionManager::initLang()
{
    // The current item must survive a rebuild (e.g. after a language switch).
    const int currentKey = m_currentLangItem ? m_currentLangItem->key : -1;
    qDeleteAll(m_langItems);
    m_langItems.clear();
    m_currentLangItem = nullptr;
    m_langItems.append(new Language::LanguageItem(tr("英语（美国）"), QStringLiteral("en-US"), 7));
    m_langItems.append(new Language::LanguageItem(tr("西班牙语"), QStringLiteral("es-MX"), 10));
    m_langItems.append(new Language::LanguageItem(tr("法语"), QStringLiteral("fr-FR"), 12));
    m_langItems.append(new Language::LanguageItem(tr("简体中文"), QStringLiteral("zh-CN"), 0));
    m_langItems.append(new Language::LanguageItem(tr("粤语"), QStringLiteral("yue"), 1));
    m_langItems.append(new Language::LanguageItem(tr("韩语"), QStringLiteral("ko-KR"), 9));
    m_langItems.append(new Language::LanguageItem(tr("日语"), QStringLiteral("ja-JP"), 8));
    m_langItems.append(new Language::LanguageItem(tr("俄语"), QStringLiteral("ru-RU"), 11));
    if (currentKey >= 0) {
        m_currentLangItem = getLangItemByKey(currentKey);
    }
}

QString CaptionManager::workingFilePath(const QString& suffix) const
{
    const QString base = GlobalManager::instance()->getCurrentFile().completeBaseName();
    const QString code = m_currentLangItem ? m_currentLangItem->code : QString();
    return QStringLiteral("%1/%2-%3.").arg(GlobalManager::instance()->getTempPath(AppConfig::APP_NAME), base, code)
           + suffix;
}

QString CaptionManager::getAudioFilePath() const
{
    if (!m_audioFilePath.isEmpty()) {
        return m_audioFilePath;
    }
    const QFileInfo current = GlobalManager::instance()->getCurrentFile();
    qCDebug(lcCaptions) << "getAudioFilePath:" << current.completeBaseName() << current.baseName();
    return workingFilePath(QStringLiteral("mp3"));
}

QString CaptionManager::getCaptionPath() const
{
    if (!m_captionPath.isEmpty()) {
        return m_captionPath;
    }
    const QFileInfo current = GlobalManager::instance()->getCurrentFile();
    qCDebug(lcCaptions) << "getCaptionPath:" << current.completeBaseName() << current.baseName();
    return workingFilePath(QStringLiteral("txt"));
}

QString CaptionManager::getTempAssFilePath() const
{
    return workingFilePath(QStringLiteral("ass"));
}

void CaptionManager::setCurrentLangItem(Language::LanguageItem* item)
{
    m_currentLangItem = item;
    if (item) {
        GlobalManager::instance()->saveSettings(AppConfig::AI_CAPTION_LANG, item->key);
    }
}

void CaptionManager::setCurrentLangItem(int key)
{
    m_currentLangItem = getLangItemByKey(key);
}

Language::LanguageItem* CaptionManager::getLangItemByKey(int key) const
{
    for (Language::LanguageItem* item : m_langItems) {
        if (item->key == key) {
            return item;
        }
    }
    return nullptr;
}

int CaptionManager::getLangItemIndexByKey(int key) const
{
    for (int i = 0; i < m_langItems.size(); ++i) {
        if (m_langItems.at(i)->key == key) {
            return i;
        }
    }
    return -1;
}

CaptionInfo* CaptionManager::getCaptionDataByIndex(int index) const
{
    // 1-based like CaptionInfo::index; out of range gives none rather than a crash.
    if (index < 1 || index > m_captions.size()) {
        return nullptr;
    }
    return m_captions.at(index - 1);
}

void CaptionManager::clearCaptions()
{
    replaceCaptions({});
}

void CaptionManager::replaceCaptions(const QList<CaptionInfo*>& captions)
{
    m_allOverride.clear();
    // Everyone holding a pointer lets go of it before the records go.
    emit aboutToReplaceCaptions();
    const QList<CaptionInfo*> old = m_captions;
    m_captions = captions;
    qDeleteAll(old);
}

QList<CaptionInfo*> CaptionManager::takeCaptions()
{
    emit aboutToReplaceCaptions();
    const QList<CaptionInfo*> taken = m_captions;
    m_captions.clear();
    return taken;
}

int CaptionManager::getMaxTextWidth() const
{
    QFont font(QStringLiteral("Microsoft YaHei"), 8, 50, false);
    const QFontMetrics metrics(font);
    int maxWidth = 0;
    for (const CaptionInfo* info : m_captions) {
        maxWidth = qMax(maxWidth, metrics.boundingRect(info->text).width());
    }
    return maxWidth;
}

void updateCaptionByCheck(CaptionInfo* info)
{
    Q_UNUSED(info)
}

// ---------------------------------------------------------------- errors

void CaptionManager::setLastError(const QString& text, const QString& forPath)
{
    m_lastError = text;
    m_errorPath = forPath;
    if (!text.isEmpty()) {
        qCWarning(lcCaptions).noquote() << "caption load error:" << text;
    }
}

void CaptionManager::reportLoadError(const QString& text)
{
    // A conversion failure already reported is the more useful message.
    if (m_lastError.isEmpty()) {
        m_lastError = text;
        qCWarning(lcCaptions).noquote() << "caption load error:" << text;
    }
}

// ---------------------------------------------------------------- ASS writer

QString CaptionManager::formatAssTime(int ms)
{
    return AssTime::format(ms);
}

int CaptionManager::parseAssTime(const QString& text)
{
    return AssTime::parse(text);
}

CaptionStyle* CaptionManager::parseStyleLine(const QString& line)
{
    return AssWriter::parseStyleLine(line);
}

QString CaptionManager::formatStyleLine(const CaptionStyle& style)
{
    return AssWriter::formatStyleLine(style);
}

bool CaptionManager::openWorkingFile(QFile& file, const char* failureLog) const
{
    file.setFileName(getTempAssFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        qCDebug(lcCaptions).noquote() << failureLog << file.fileName() << file.errorString();
        return false;
    }
    return true;
}

bool CaptionManager::createCaptions(const QByteArray& json, bool save)
{
    if (save) {
        // The reply as text, up to a NUL byte should one slip in.
        GlobalManager::writeFileContent(getCaptionPath(), QString::fromUtf8(json.constData()));
    }

    const QList<SpeechReply::Utterance> utterances = SpeechReply::parse(json).utterances();
    const QString styleLine = AssWriter::defaultStyleLine();
    QList<CaptionInfo*> captions;
    captions.reserve(utterances.size());
    for (int i = 0; i < utterances.size(); ++i) {
        const SpeechReply::Utterance& item = utterances.at(i);
        int endTime = item.endMs;
        // Back-to-back captions must not touch, or both show at the joint.
        if (i + 1 < utterances.size() && endTime == utterances.at(i + 1).startMs) {
            endTime -= 10;
        }
        CaptionStyle* style = AssWriter::parseStyleLine(styleLine);
        auto* info = new CaptionInfo;
        info->index = i + 1;
        info->text = item.text;
        info->initialText = info->text;
        info->setTimesMs(item.startMs, endTime);
        info->style = style->name;
        info->captionStyle = style;
        info->captionEdit = CaptionEdit::fromStyle(*style, info->text);
        captions.append(info);
    }
    replaceCaptions(captions);

    QFile file;
    if (!openWorkingFile(file, "Failed to open the file for writing")) {
        return true;
    }
    QTextStream out(&file);
    out.setCodec("UTF-8");
    AssWriter::writeHeader(out);
    if (m_captions.isEmpty()) {
        out << styleLine << '\n';
        qCDebug(lcCaptions).noquote() << "create caption style with empty caption:" << styleLine;
    } else {
        QSet<QString> written;
        for (const CaptionInfo* info : qAsConst(m_captions)) {
            if (written.contains(info->style)) {
                continue;
            }
            const QString line = AssWriter::formatStyleLine(*info->captionStyle);
            out << line << '\n';
            written.insert(info->style);
            qCDebug(lcCaptions).noquote() << "create caption style:" << line;
        }
    }
    AssWriter::writeEventsHeader(out);
    for (const CaptionInfo* info : qAsConst(m_captions)) {
        out << AssWriter::eventLine(*info) << '\n';
    }
    out.flush();
    file.close();
    GlobalManager::instance()->emitEvent(AppConfig::CREATE_CAPTION_COMPLETE, file.fileName());
    return true;
}

// ---------------------------------------------------------------- loading

int CaptionManager::loadCaptionFile(const QString& path)
{
    return finishLoad(path, CaptionFileReader::read(pathToLoad(path)));
}

QString CaptionManager::pathToLoad(const QString& path) const
{
    return path.isEmpty() ? m_assFilePath : path;
}

int CaptionManager::finishLoad(const QString& path, CaptionFileContent content)
{
    // A conversion's own message belongs to its output and to the fallback
    // load that follows a failed conversion; anything else starts afresh.
    const bool afterConversion = path.isEmpty() ? !m_errorPath.isEmpty() : path == m_errorPath;
    if (!afterConversion) {
        m_lastError.clear();
    }
    m_errorPath.clear();

    clearCaptions();
    m_fileLines.clear();
    if (content.path.isEmpty()) {
        qCDebug(lcCaptions) << "Failed to open the ass file, filePath is empty.";
        reportLoadError(tr("No subtitle file was chosen."));
        return -1;
    }
    if (!content.readable) {
        reportLoadError(content.error);
        return 1;
    }

    m_assFilePath = content.path;
    qDeleteAll(m_styles);
    m_styles = content.styles;
    content.styles.clear();
    m_fileLines = std::move(content.lines);
    m_captions = content.captions; // emptied above
    content.captions.clear();

    if (m_captions.isEmpty()) {
        reportLoadError(tr("No captions were found in \"%1\".").arg(QFileInfo(m_assFilePath).fileName()));
    }
    return 0;
}

// ---------------------------------------------------------------- editing

void CaptionManager::changeCaption(CaptionInfo* info)
{
    if (!info) {
        return;
    }
    for (int i = 0; i < m_fileLines.size(); ++i) {
        const QString& raw = m_fileLines.at(i);
        if (info->line.isEmpty() || raw.trimmed() != info->line) {
            continue;
        }
        // Only the Text field (after the ninth comma) is touched, so a short
        // text such as "0" cannot rewrite the times.
        int textStart = -1;
        int commas = 0;
        for (int c = 0; c < raw.size(); ++c) {
            if (raw.at(c) == QLatin1Char(',') && ++commas == 9) {
                textStart = c + 1;
                break;
            }
        }
        if (textStart < 0) {
            break;
        }
        QString text = raw.mid(textStart);
        if (info->initialText.isEmpty()) {
            text = info->text + text;
        } else {
            text.replace(info->initialText, info->text);
        }
        const QString newLine = raw.left(textStart) + text;
        qCDebug(lcCaptions).noquote() << "replace:" << info->initialText << info->text << newLine << info->line;
        m_fileLines[i] = newLine;
        info->initialText = info->text;
        info->line = newLine.trimmed();
        break;
    }
    qCDebug(lcCaptions) << "changeCaption lines:" << m_fileLines.size();

    QFile file;
    if (m_fileLines.isEmpty()) {
        // Nothing loaded: an empty rewrite would wipe the captions on screen.
        file.setFileName(getTempAssFilePath());
        qCDebug(lcCaptions) << "changeCaption: no loaded file lines, working file left as is";
    } else if (openWorkingFile(file, "Failed to open the output file for writing")) {
        QTextStream out(&file);
        out.setCodec("UTF-8");
        for (const QString& line : qAsConst(m_fileLines)) {
            out << line << '\n';
        }
        out.flush();
        file.close();
    }
    GlobalManager::instance()->emitEvent(AppConfig::UPDATE_CAPTION, file.fileName());
}

void CaptionManager::changeCaptionNew(CaptionInfo* info, bool isAll)
{
    if (!info) {
        return;
    }
    if (!info->captionStyle) {
        info->captionStyle = AssWriter::parseStyleLine(AssWriter::defaultStyleLine());
    }
    if (!info->captionEdit) {
        info->captionEdit = CaptionEdit::fromStyle(*info->captionStyle, info->text);
    }
    const CaptionEdit* edit = info->captionEdit;
    info->text = edit->text;
    const QString block = AssWriter::overrideBlock(*edit);
    if (info->editMarks.isEmpty()) {
        info->editMarks.append(qMakePair(block, info->text));
    } else {
        info->editMarks[0] = qMakePair(block, info->text);
    }

    if (isAll) {
        info->style = kStyleAll;
        info->captionStyle->name = kStyleAll;
        for (CaptionInfo* other : qAsConst(m_captions)) {
            other->style = kStyleAll;
            if (other == info) {
                continue;
            }
            if (other->captionStyle) {
                *other->captionStyle = *info->captionStyle;
            } else {
                other->captionStyle = new CaptionStyle(*info->captionStyle);
            }
            if (!other->captionEdit) {
                other->captionEdit = CaptionEdit::fromStyle(*other->captionStyle, other->text);
            }
            other->captionEdit->x = edit->x;
            other->captionEdit->y = edit->y;
            other->captionEdit->fontSize = edit->fontSize;
            other->captionEdit->border = edit->border;
            other->isStyleChanged = info->isStyleChanged;
            other->isPositionChanged = info->isPositionChanged;
        }
    }

    QFile file;
    if (!openWorkingFile(file, "Failed to open the file for writing")) {
        return;
    }
    QTextStream out(&file);
    out.setCodec("UTF-8");
    m_allOverride = isAll ? block : QString();
    writeRegenerated(out, m_allOverride);
    out.flush();
    file.close();
    GlobalManager::instance()->emitEvent(AppConfig::UPDATE_CAPTION, file.fileName());
}

void CaptionManager::writeRegenerated(QTextStream& out, const QString& allBlock, bool withHidden) const
{
    AssWriter::writeHeader(out);

    QSet<QString> written;
    for (const CaptionStyle* style : qAsConst(m_styles)) {
        const QString line = AssWriter::formatStyleLine(*style);
        qCDebug(lcCaptions).noquote() << "style:" << line;
        out << line << '\n';
        written.insert(style->name);
    }
    for (const CaptionInfo* caption : qAsConst(m_captions)) {
        if (written.contains(caption->style)) {
            continue;
        }
        written.insert(caption->style);
        // A caption whose style a loaded file never defined has nothing to write.
        if (!caption->captionStyle || caption->captionStyle->name.isEmpty()) {
            continue;
        }
        const QString line = AssWriter::formatStyleLine(*caption->captionStyle);
        qCDebug(lcCaptions).noquote() << "style:" << line;
        out << line << '\n';
    }

    AssWriter::writeEventsHeader(out);
    for (const CaptionInfo* caption : qAsConst(m_captions)) {
        QString override = allBlock;
        if (allBlock.isEmpty() && !caption->editMarks.isEmpty()) {
            override = caption->editMarks.constFirst().first;
            qCDebug(lcCaptions).noquote() << "subtitle->" << override << caption->text;
        }
        const QString text = caption->isShow || withHidden ? AssWriter::eventText(caption->text) : QString();
        out << AssWriter::editedEventLine(*caption, text, override) << '\n';
    }
}

void CaptionManager::restoreState(const QList<CaptionInfo*>& captions, const QList<CaptionStyle*>& styles,
                                  const QStringList& fileLines, const QString& assFilePath,
                                  const QByteArray& shownText, const QString& allOverride)
{
    replaceCaptions(captions);
    m_allOverride = allOverride;
    qDeleteAll(m_styles);
    m_styles = styles;
    m_fileLines = fileLines;
    m_assFilePath = assFilePath;

    QFile file;
    if (!openWorkingFile(file, "Failed to open the file for writing")) {
        return;
    }
    if (shownText.isEmpty()) {
        QTextStream out(&file);
        out.setCodec("UTF-8");
        writeRegenerated(out, QString());
        out.flush();
    } else {
        file.write(shownText);
    }
    file.close();
    GlobalManager::instance()->emitEvent(AppConfig::UPDATE_CAPTION, file.fileName());
}

// ---------------------------------------------------------------- saving

QString CaptionManager::captionFileText(const QString& format) const
{
    QString text;
    QTextStream out(&text);
    if (format == QLatin1String("ass")) {
        writeRegenerated(out, m_allOverride, true);
        out.flush();
        return text;
    }
    static const QRegularExpression overrides(QStringLiteral("\\{[^}]*\\}"));
    int number = 0;
    for (const CaptionInfo* caption : qAsConst(m_captions)) {
        if (caption->startMs() < 0 || caption->endMs() < 0) {
            continue;
        }
        QString body = caption->text;
        body.remove(overrides);
        body.replace(QLatin1String("\\N"), QLatin1String("\n"));
        body.replace(QLatin1String("\\n"), QLatin1String("\n"));
        body.replace(QLatin1String("\\h"), QLatin1String(" "));
        out << ++number << '\n'
            << AssTime::formatSrt(caption->startMs()) << " --> " << AssTime::formatSrt(caption->endMs()) << '\n'
            << body << "\n\n";
    }
    out.flush();
    return text;
}

bool CaptionManager::saveCaptionFile(const QString& path)
{
    m_lastError.clear();
    m_errorPath.clear();
    const QFileInfo info(path);
    const QString format = info.suffix().toLower();
    if (format != QLatin1String("srt") && format != QLatin1String("ass")) {
        m_lastError = tr("Captions are saved as .srt or .ass files; \"%1\" is neither.").arg(info.fileName());
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        m_lastError = tr("\"%1\" could not be written: %2").arg(info.fileName(), file.errorString());
        return false;
    }
    file.write(captionFileText(format).toUtf8());
    if (!file.commit()) {
        m_lastError = tr("\"%1\" could not be written: %2").arg(info.fileName(), file.errorString());
        return false;
    }
    qCDebug(lcCaptions).noquote() << "captions saved:" << path << m_captions.size();
    return true;
}

CaptionInfo* CaptionManager::insertCaptionInfo(double time, double duration)
{
    const qint64 t = static_cast<qint64>(time * 1000.0);
    const qint64 wanted = static_cast<qint64>(duration);
    int position = -1;
    qint64 length = 0;
    const CaptionInfo* base = nullptr;

    if (m_captions.isEmpty()) {
        position = 0;
        length = wanted;
    } else if (t < m_captions.constFirst()->startMs()) {
        base = m_captions.constFirst();
        position = 0;
        length = qMin(wanted, base->startMs() - t);
    } else if (t > m_captions.constLast()->endMs()) {
        base = m_captions.constLast();
        position = m_captions.size();
        length = wanted;
    } else {
        for (int i = 0; i + 1 < m_captions.size(); ++i) {
            const qint64 nextStart = m_captions.at(i + 1)->startMs();
            if (m_captions.at(i)->endMs() <= t && t <= nextStart) {
                base = m_captions.at(i);
                position = i + 1;
                length = qMin(wanted, nextStart - t - 10);
                break;
            }
        }
    }
    // Inside a caption, or a gap too narrow for anything.
    if (position < 0 || length <= 0) {
        return nullptr;
    }

    auto* info = new CaptionInfo;
    if (base) {
        info->type = base->type;
        info->layer = base->layer;
        info->style = base->style;
        info->actor = base->actor;
        info->marginL = base->marginL;
        info->marginR = base->marginR;
        info->marginV = base->marginV;
        info->effect = base->effect;
        info->text = base->text;
        info->initialText = base->initialText;
        // No source line: a line-level edit must not find the base caption's line.
        info->captionStyle = base->captionStyle ? new CaptionStyle(*base->captionStyle) : new CaptionStyle;
    } else {
        info->captionStyle = AssWriter::parseStyleLine(AssWriter::defaultStyleLine());
        info->style = info->captionStyle->name;
    }
    info->setTimesMs(clampToInt(t), clampToInt(t + length));
    info->index = position + 1;
    for (int i = position; i < m_captions.size(); ++i) {
        ++m_captions[i]->index;
    }
    m_captions.insert(position, info);
    emit captionInserted(info);
    return info;
}
