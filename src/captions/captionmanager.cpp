#include "captionmanager.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "subtitleencoding.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringView>
#include <QTextStream>

#include <limits>

namespace {
const QString kDefaultStyleTemplate = QStringLiteral(
    "Style: Default,%1,%2,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,1,1,2,20,20,20,1");
const QString kStyleFormat = QStringLiteral(
    "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, "
    "Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, "
    "Alignment, MarginL, MarginR, MarginV, Encoding");
const QString kEventFormat
    = QStringLiteral("Format: Layer, Start, End, Style, Actor, MarginL, MarginR, MarginV, Effect, Text");
const QString kEventTemplate = QStringLiteral("Dialogue: 0,%1,%2,%4,,0,0,0,,%3");
const QString kEditedEventTemplate = QStringLiteral("Dialogue: 0,%1,%2,%4,,0,0,0,,%5%3");
const QString kOverrideTemplate = QStringLiteral("{\\fs%1\\bord%4\\shad%5\\pos(%2,%3)}");
const QString kStylePrefix = QStringLiteral("Style: ");
const QString kStyleAll = QStringLiteral("StyleAll");

// Anything larger is not a subtitle file (a video picked by mistake, say).
constexpr qint64 kMaxSubtitleFileSize = 256 * 1024 * 1024;

QString defaultStyleLine()
{
    return kDefaultStyleTemplate.arg(QStringLiteral("Arial")).arg(18);
}

// Style numbers may be written as decimals ("20.5"); a missing or garbled one
// keeps the default rather than giving an invisible caption.
int styleNumber(const QString& text, int fallback)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || value < 0 || value > 10000) {
        return fallback;
    }
    return static_cast<int>(value);
}

CaptionEdit* makeEdit(const CaptionStyle& style, const QString& text)
{
    auto* edit = new CaptionEdit;
    const CaptionEdit defaults;
    edit->fontSize = styleNumber(style.fontsize, defaults.fontSize);
    edit->border = styleNumber(style.outline, defaults.border);
    edit->x = 192;
    edit->y = 268;
    edit->text = text;
    return edit;
}

// A line break inside a caption would end the event line and drop the rest.
QString eventText(const QString& text)
{
    if (!text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'))) {
        return text;
    }
    QString copy = text;
    copy.replace(QLatin1String("\r\n"), QLatin1String("\\N"));
    copy.replace(QLatin1Char('\n'), QLatin1String("\\N"));
    copy.replace(QLatin1Char('\r'), QLatin1String("\\N"));
    return copy;
}

// Service times are integers; anything else reads as 0.
int jsonMs(const QJsonValue& value)
{
    if (!value.isDouble()) {
        return 0;
    }
    const double ms = value.toDouble();
    if (ms != static_cast<double>(static_cast<qint64>(ms)) || ms < std::numeric_limits<int>::min()
        || ms > std::numeric_limits<int>::max()) {
        return 0;
    }
    return static_cast<int>(ms);
}

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
    qDebug() << "getAudioFilePath:" << current.completeBaseName() << current.baseName();
    return workingFilePath(QStringLiteral("mp3"));
}

QString CaptionManager::getCaptionPath() const
{
    if (!m_captionPath.isEmpty()) {
        return m_captionPath;
    }
    const QFileInfo current = GlobalManager::instance()->getCurrentFile();
    qDebug() << "getCaptionPath:" << current.completeBaseName() << current.baseName();
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
    m_captions.clear();
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
        qWarning().noquote() << "caption load error:" << text;
    }
}

void CaptionManager::reportLoadError(const QString& text)
{
    // A conversion failure already reported is the more useful message.
    if (m_lastError.isEmpty()) {
        m_lastError = text;
        qWarning().noquote() << "caption load error:" << text;
    }
}

// ---------------------------------------------------------------- ASS writer

QString CaptionManager::formatAssTime(int ms)
{
    const int value = qMax(0, ms);
    return QStringLiteral("%1:%2:%3.%4")
        .arg(value / 3600000)
        .arg((value / 60000) % 60)
        .arg((value / 1000) % 60)
        .arg((value % 1000) / 10);
}

int CaptionManager::parseAssTime(const QString& text)
{
    // H:M:S[.F], where F is a count of hundredths whatever its length, as
    // renderers read it: "0:0:5.3" is 5030 ms, "0:00:05.30" is 5300 ms.
    const QStringView view = QStringView(text).trimmed();
    qint64 parts[4] = {0, 0, 0, 0};
    int field = 0;
    int digits = 0;
    for (const QChar ch : view) {
        if (ch.isDigit() && ch.unicode() < 128) {
            parts[field] = parts[field] * 10 + (ch.unicode() - '0');
            if (++digits > 9) {
                return -1;
            }
        } else if (ch == QLatin1Char(':') && field < 2 && digits > 0) {
            ++field;
            digits = 0;
        } else if (ch == QLatin1Char('.') && field == 2 && digits > 0) {
            ++field;
            digits = 0;
        } else {
            return -1;
        }
    }
    if (field < 2 || digits == 0) {
        return -1;
    }
    const qint64 ms = ((parts[0] * 60 + parts[1]) * 60 + parts[2]) * 1000 + parts[3] * 10;
    return ms > std::numeric_limits<int>::max() ? -1 : static_cast<int>(ms);
}

CaptionStyle* CaptionManager::parseStyleLine(const QString& line)
{
    auto* style = new CaptionStyle;
    const QString body = line.startsWith(kStylePrefix) ? line.mid(kStylePrefix.size()) : line;
    style->fields = body.split(QLatin1Char(','));
    QString* targets[] = {&style->name,         &style->fontname,     &style->fontsize,
                          &style->primaryColour, &style->secondaryColour, &style->outlineColour,
                          &style->backColour,   &style->bold,         &style->italic,
                          &style->underline,    &style->strikeOut,    &style->scaleX,
                          &style->scaleY,       &style->spacing,      &style->angle,
                          &style->borderStyle,  &style->outline,      &style->shadow,
                          &style->alignment,    &style->marginL,      &style->marginR,
                          &style->marginV,      &style->encoding};
    const int count = qMin<int>(style->fields.size(), static_cast<int>(sizeof(targets) / sizeof(targets[0])));
    for (int i = 0; i < count; ++i) {
        *targets[i] = style->fields.at(i).trimmed();
    }
    return style;
}

QString CaptionManager::formatStyleLine(const CaptionStyle& style)
{
    // Joined rather than filled with arg(): a field holding "%1" stays as written.
    const QStringList fields{style.name,         style.fontname,        style.fontsize,
                             style.primaryColour, style.secondaryColour, style.outlineColour,
                             style.backColour,   style.bold,            style.italic,
                             style.underline,    style.strikeOut,       style.scaleX,
                             style.scaleY,       style.spacing,         style.angle,
                             style.borderStyle,  style.outline,         style.shadow,
                             style.alignment,    style.marginL,         style.marginR,
                             style.marginV,      style.encoding};
    return kStylePrefix + fields.join(QLatin1Char(','));
}

bool CaptionManager::openWorkingFile(QFile& file, const char* failureLog) const
{
    file.setFileName(getTempAssFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        qDebug().noquote() << failureLog << file.fileName() << file.errorString();
        return false;
    }
    return true;
}

void CaptionManager::writeHeader(QTextStream& stream) const
{
    // No PlayResX/PlayResY on purpose: positions are meant in the renderer's
    // default 384x288 script space.
    stream << "[Script Info]\n"
           << "; Script generated by " << AppConfig::APP_NAME << '\n'
           << "Title: Your Subtitle Title\n"
           << "ScriptType: v4.00+\n"
           << "WrapStyle: 0\n"
           << ", MarginL, MarginR, MarginV, Effect, Text\n"
           << "empty caption:\n"
           << '\n'
           << "[V4+ Styles]\n"
           << kStyleFormat << '\n';
}

bool CaptionManager::createCaptions(const QByteArray& json, bool save)
{
    if (save) {
        // The reply as text, up to a NUL byte should one slip in.
        GlobalManager::writeFileContent(getCaptionPath(), QString::fromUtf8(json.constData()));
    }

    const QJsonArray utterances
        = QJsonDocument::fromJson(json).object().value(QStringLiteral("utterances")).toArray();
    clearCaptions();
    const QString styleLine = defaultStyleLine();
    for (int i = 0; i < utterances.size(); ++i) {
        const QJsonObject item = utterances.at(i).toObject();
        const int startTime = jsonMs(item.value(QStringLiteral("start_time")));
        int endTime = jsonMs(item.value(QStringLiteral("end_time")));
        // Back-to-back captions must not touch, or both show at the joint.
        if (i + 1 < utterances.size()
            && endTime == jsonMs(utterances.at(i + 1).toObject().value(QStringLiteral("start_time")))) {
            endTime -= 10;
        }
        CaptionStyle* style = parseStyleLine(styleLine);
        auto* info = new CaptionInfo;
        info->index = i + 1;
        info->text = item.value(QStringLiteral("text")).toString();
        info->initialText = info->text;
        info->start = formatAssTime(startTime);
        info->end = formatAssTime(endTime);
        info->style = style->name;
        info->captionStyle = style;
        info->captionEdit = makeEdit(*style, info->text);
        m_captions.append(info);
    }

    QFile file;
    if (!openWorkingFile(file, "Failed to open the file for writing")) {
        return true;
    }
    QTextStream out(&file);
    out.setCodec("UTF-8");
    writeHeader(out);
    if (m_captions.isEmpty()) {
        out << styleLine << '\n';
        qDebug().noquote() << "create caption style with empty caption:" << styleLine;
    } else {
        QSet<QString> written;
        for (const CaptionInfo* info : qAsConst(m_captions)) {
            if (written.contains(info->style)) {
                continue;
            }
            const QString line = formatStyleLine(*info->captionStyle);
            out << line << '\n';
            written.insert(info->style);
            qDebug().noquote() << "create caption style:" << line;
        }
    }
    out << '\n' << "[Events]\n" << kEventFormat << '\n';
    for (const CaptionInfo* info : qAsConst(m_captions)) {
        // Filled one placeholder after another: the text goes in before the style name.
        out << kEventTemplate.arg(info->start).arg(info->end).arg(eventText(info->text)).arg(info->style)
            << '\n';
    }
    out.flush();
    file.close();
    GlobalManager::instance()->emitEvent(AppConfig::CREATE_CAPTION_COMPLETE, file.fileName());
    return true;
}

// ---------------------------------------------------------------- loading

int CaptionManager::loadCaptionFile(const QString& path)
{
    // A conversion's own message belongs to its output and to the fallback
    // load that follows a failed conversion; anything else starts afresh.
    const bool afterConversion = path.isEmpty() ? !m_errorPath.isEmpty() : path == m_errorPath;
    if (!afterConversion) {
        m_lastError.clear();
    }
    m_errorPath.clear();

    const QString filePath = path.isEmpty() ? m_assFilePath : path;
    if (filePath.isEmpty()) {
        qDebug() << "Failed to open the ass file, filePath is empty.";
        clearCaptions();
        m_fileLines.clear();
        reportLoadError(tr("No subtitle file was chosen."));
        return -1;
    }

    clearCaptions();
    m_fileLines.clear();

    const QFileInfo fileInfo(filePath);
    QFile file(filePath);
    if (fileInfo.isDir()) {
        qDebug().noquote() << "Failed to open the file" << filePath << "(a folder)";
        reportLoadError(tr("\"%1\" is a folder, not a subtitle file.").arg(fileInfo.fileName()));
        return 1;
    }
    if (fileInfo.size() > kMaxSubtitleFileSize) {
        qDebug().noquote() << "Failed to open the file" << filePath << "(too large:" << fileInfo.size() << ")";
        reportLoadError(tr("\"%1\" is too large to be a subtitle file.").arg(fileInfo.fileName()));
        return 1;
    }
    // Read raw: line ends (LF, CRLF, lone CR) and the character set are handled below.
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug().noquote() << "Failed to open the file" << filePath << file.errorString();
        reportLoadError(tr("The subtitle file \"%1\" could not be opened.").arg(fileInfo.fileName()));
        return 1;
    }

    m_assFilePath = filePath;
    qDeleteAll(m_styles);
    m_styles.clear();
    const QByteArray bytes = file.readAll();
    file.close();
    parseLines(SubtitleEncoding::decode(bytes));

    if (m_captions.isEmpty()) {
        reportLoadError(tr("No captions were found in \"%1\".").arg(fileInfo.fileName()));
    }
    return 0;
}

void CaptionManager::parseLines(const QString& content)
{
    static const QString stylePrefix = QStringLiteral("Style:");
    static const QString eventsSection = QStringLiteral("[Events]");
    static const QString dialoguePrefix = QStringLiteral("Dialogue:");

    // Last style of a name wins, as when searching the list from its end.
    QHash<QString, const CaptionStyle*> stylesByName;
    bool inEvents = false;
    int counter = 0;
    const QChar* data = content.constData();
    const int size = content.size();
    int pos = 0;
    while (pos < size) {
        int end = pos;
        while (end < size && data[end] != QLatin1Char('\n') && data[end] != QLatin1Char('\r')) {
            ++end;
        }
        const QString raw = content.mid(pos, end - pos);
        pos = end;
        if (pos < size) {
            pos += (data[pos] == QLatin1Char('\r') && pos + 1 < size && data[pos + 1] == QLatin1Char('\n')) ? 2 : 1;
        }
        m_fileLines.append(raw);

        const QString line = raw.trimmed();
        if (line.startsWith(stylePrefix)) {
            CaptionStyle* style = parseStyleLine(line);
            m_styles.append(style);
            stylesByName.insert(style->name, style);
            continue;
        }
        if (line.startsWith(eventsSection)) {
            inEvents = true;
            continue;
        }
        if (!inEvents || !line.startsWith(dialoguePrefix)) {
            continue;
        }

        const int colon = dialoguePrefix.size() - 1;
        int commas[9];
        int found = 0;
        for (int i = colon + 1; i < line.size() && found < 9; ++i) {
            if (line.at(i) == QLatin1Char(',')) {
                commas[found++] = i;
            }
        }
        if (found < 9) {
            continue;
        }
        auto field = [&line, &commas, colon](int n) {
            const int from = n == 0 ? colon + 1 : commas[n - 1] + 1;
            return QStringView(line).mid(from, commas[n] - from).trimmed().toString();
        };

        auto* info = new CaptionInfo;
        info->index = ++counter;
        info->type = line.left(colon);
        info->layer = field(0);
        info->start = field(1);
        info->end = field(2);
        info->style = field(3);
        info->actor = field(4);
        info->marginL = field(5);
        info->marginR = field(6);
        info->marginV = field(7);
        info->effect = field(8);
        info->text = line.mid(commas[8] + 1);
        info->initialText = info->text;
        info->line = line;
        const CaptionStyle* style = stylesByName.value(info->style, nullptr);
        info->captionStyle = style ? new CaptionStyle(*style) : new CaptionStyle;
        info->captionEdit = makeEdit(*info->captionStyle, info->text);
        m_captions.append(info);
    }
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
        qDebug().noquote() << "replace:" << info->initialText << info->text << newLine << info->line;
        m_fileLines[i] = newLine;
        info->initialText = info->text;
        info->line = newLine.trimmed();
        break;
    }
    qDebug() << "changeCaption lines:" << m_fileLines.size();

    QFile file;
    if (m_fileLines.isEmpty()) {
        // Nothing loaded: an empty rewrite would wipe the captions on screen.
        file.setFileName(getTempAssFilePath());
        qDebug() << "changeCaption: no loaded file lines, working file left as is";
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
        info->captionStyle = parseStyleLine(defaultStyleLine());
    }
    if (!info->captionEdit) {
        info->captionEdit = makeEdit(*info->captionStyle, info->text);
    }
    const CaptionEdit* edit = info->captionEdit;
    info->text = edit->text;
    const QString block = kOverrideTemplate.arg(edit->fontSize)
                              .arg(edit->x)
                              .arg(edit->y)
                              .arg(edit->border)
                              .arg(edit->shadow);
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
                other->captionEdit = makeEdit(*other->captionStyle, other->text);
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
    writeHeader(out);

    QSet<QString> written;
    for (const CaptionStyle* style : qAsConst(m_styles)) {
        const QString line = formatStyleLine(*style);
        qDebug().noquote() << "style:" << line;
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
        const QString line = formatStyleLine(*caption->captionStyle);
        qDebug().noquote() << "style:" << line;
        out << line << '\n';
    }

    out << '\n' << "[Events]\n" << kEventFormat << '\n';
    for (const CaptionInfo* caption : qAsConst(m_captions)) {
        QString override;
        if (isAll) {
            override = block;
        } else if (!caption->editMarks.isEmpty()) {
            override = caption->editMarks.constFirst().first;
            qDebug().noquote() << "subtitle->" << override << caption->text;
        }
        const QString text = caption->isShow ? eventText(caption->text) : QString();
        out << kEditedEventTemplate.arg(caption->start)
                   .arg(caption->end)
                   .arg(text)
                   .arg(caption->style)
                   .arg(override)
            << '\n';
    }
    out.flush();
    file.close();
    GlobalManager::instance()->emitEvent(AppConfig::UPDATE_CAPTION, file.fileName());
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
    } else if (t < parseAssTime(m_captions.constFirst()->start)) {
        base = m_captions.constFirst();
        position = 0;
        length = qMin(wanted, parseAssTime(base->start) - t);
    } else if (t > parseAssTime(m_captions.constLast()->end)) {
        base = m_captions.constLast();
        position = m_captions.size();
        length = wanted;
    } else {
        for (int i = 0; i + 1 < m_captions.size(); ++i) {
            const qint64 nextStart = parseAssTime(m_captions.at(i + 1)->start);
            if (parseAssTime(m_captions.at(i)->end) <= t && t <= nextStart) {
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
        info->captionStyle = parseStyleLine(defaultStyleLine());
        info->style = info->captionStyle->name;
    }
    info->start = formatAssTime(clampToInt(t));
    info->end = formatAssTime(clampToInt(t + length));
    info->index = position + 1;
    for (int i = position; i < m_captions.size(); ++i) {
        ++m_captions[i]->index;
    }
    m_captions.insert(position, info);
    return info;
}
