#include "appconfig.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "globalmanager.h"
#include "imageswidget.h"
#include "mainwindow.h"
#include "messagedialog.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "savefilebar.h"
#include "testsupport.h"
#include "titlebar.h"
#include "translatemanager.h"
#include "videoplaywidget.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

const QStringList kShortNames{"en", "de", "es", "fr", "it", "pt", "cn", "hk", "jp"};

// One message of a catalogue as lupdate writes it.
struct Message {
    QString context;
    QString source;
    QString type;               // "unfinished", "vanished", "obsolete" or empty
    QStringList translations;   // one entry, or one per plural form
    bool numerus = false;
};

QList<Message> readCatalogue(const QString& path, QString* error)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot open %1").arg(path);
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    Message current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        const QStringRef name = xml.name();
        if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            current = Message();
            current.context = context;
            current.numerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
        } else if (name == QLatin1String("source")) {
            current.source = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            current.type = xml.attributes().value(QLatin1String("type")).toString();
            if (current.numerus) {
                while (xml.readNextStartElement()) {
                    current.translations << xml.readElementText();
                }
            } else {
                current.translations << xml.readElementText();
            }
            messages << current;
        }
    }
    if (xml.hasError()) {
        *error = QStringLiteral("%1: %2").arg(path, xml.errorString());
    }
    return messages;
}

// Placeholders of a text, sorted: %1, %2, ... and %n.
QStringList placeholders(const QString& text)
{
    QStringList found;
    static const QRegularExpression marker(QStringLiteral("%(\\d+|n)"));
    auto it = marker.globalMatch(text);
    while (it.hasNext()) {
        found << it.next().captured(0);
    }
    found.sort();
    return found;
}

// Tag names of rich text, in order, without their attributes' values.
QStringList tags(const QString& text)
{
    QStringList found;
    static const QRegularExpression tag(QStringLiteral("<(/?[a-zA-Z]+)[^>]*>"));
    auto it = tag.globalMatch(text);
    while (it.hasNext()) {
        found << it.next().captured(1);
    }
    return found;
}

QString lupdateProgram()
{
    const QString beside = QLibraryInfo::location(QLibraryInfo::BinariesPath) + QStringLiteral("/lupdate");
    return QFile::exists(beside) ? beside : QStandardPaths::findExecutable(QStringLiteral("lupdate"));
}

QString plainText(const QLabel* label)
{
    if (label->textFormat() == Qt::PlainText
        || (label->textFormat() == Qt::AutoText && !Qt::mightBeRichText(label->text()))) {
        return label->text();
    }
    QTextDocument document;
    document.setHtml(label->text());
    return document.toPlainText();
}

int widestLine(const QFontMetrics& metrics, const QString& text)
{
    int widest = 0;
    for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\\n\\x2029]")))) {
        widest = qMax(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

// Texts of labels, buttons and check boxes that do not fit their widgets,
// and text widgets that overlap each other or stick out of their parents.
// A label whose text is shortened on purpose carries the property "elided".
QStringList layoutProblems(QWidget* window)
{
    QStringList problems;
    QList<QWidget*> texts;
    auto describe = [](QWidget* widget, const QString& text) {
        return QStringLiteral("%1 \"%2\" (%3, parent %4)")
            .arg(QString::fromLatin1(widget->metaObject()->className()), text, widget->objectName(),
                 widget->parentWidget() ? widget->parentWidget()->objectName() : QString());
    };
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(window) || widget->window() != window) {
            continue;
        }
        const QFontMetrics metrics = widget->fontMetrics();
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            const QString text = plainText(label);
            if (text.isEmpty() || label->property("elided").toBool()) {
                continue;
            }
            texts << label;
            const QRect room = label->contentsRect().adjusted(label->margin(), label->margin(), -label->margin(),
                                                              -label->margin());
            if (label->wordWrap()) {
                if (label->heightForWidth(label->width()) > label->height()) {
                    problems << QStringLiteral("wrapped text cut off at the bottom: ") + describe(label, text);
                }
            } else if (widestLine(metrics, text) > room.width()) {
                problems << QStringLiteral("%1 px wide text in %2 px: ").arg(widestLine(metrics, text)).arg(room.width())
                                + describe(label, text);
            }
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            const QString text = button->text();
            if (text.isEmpty()) {
                continue;
            }
            texts << button;
            const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
            const int needed = metrics.horizontalAdvance(text) + icon;
            int room = button->contentsRect().width();
            QStyleOptionButton option;
            option.initFrom(button);
            option.text = text;
            option.icon = button->icon();
            option.iconSize = button->iconSize();
            if (qobject_cast<QCheckBox*>(button)) {
                room = button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button).width();
            } else if (qobject_cast<QRadioButton*>(button)) {
                room = button->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, button).width();
            } else if (qobject_cast<QPushButton*>(button)) {
                room = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button).width();
            } else if (qobject_cast<QToolButton*>(button)) {
                room = button->width() - (button->sizeHint().width() - needed);
            }
            if (needed > room) {
                problems << QStringLiteral("%1 px wide text in %2 px: ").arg(needed).arg(room) + describe(button, text);
            }
        }
    }
    auto insideScrollArea = [window](QWidget* widget) {
        for (QWidget* p = widget->parentWidget(); p && p != window; p = p->parentWidget()) {
            if (qobject_cast<QAbstractScrollArea*>(p)) {
                return true;
            }
        }
        return false;
    };
    for (QWidget* widget : qAsConst(texts)) {
        const QRect global(widget->mapTo(window, QPoint(0, 0)), widget->size());
        if (!insideScrollArea(widget)) {
            for (QWidget* p = widget->parentWidget(); p; p = p->parentWidget()) {
                const QRect parent(p->mapTo(window, QPoint(0, 0)), p->size());
                if (!parent.contains(global)) {
                    problems << QStringLiteral("sticks out of %1: ").arg(p->objectName())
                                    + describe(widget, widget->property("text").toString());
                    break;
                }
                if (p == window) {
                    break;
                }
            }
        }
        for (QWidget* other : qAsConst(texts)) {
            if (other <= widget || other->isAncestorOf(widget) || widget->isAncestorOf(other)) {
                continue;
            }
            const QRect second(other->mapTo(window, QPoint(0, 0)), other->size());
            if (global.intersects(second)) {
                problems << QStringLiteral("overlaps %1: ").arg(describe(other, other->property("text").toString()))
                                + describe(widget, widget->property("text").toString());
            }
        }
    }
    return problems;
}

// The first text button among a panel's own children.
QString firstButtonText(QWidget* panel)
{
    for (QPushButton* button : panel->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!button->text().isEmpty()) {
            return button->text();
        }
    }
    return QString();
}

QAction* languageAction(MainWindow* window, int type)
{
    QMenu* menu = window->titleBar()->button(TitleBar::Menu)
                      ? qobject_cast<QToolButton*>(window->titleBar()->button(TitleBar::Menu))->menu()
                      : nullptr;
    if (!menu) {
        return nullptr;
    }
    for (QMenu* sub : menu->findChildren<QMenu*>()) {
        for (QAction* action : sub->actions()) {
            if (action->isCheckable() && action->data().type() == QVariant::Int && action->data().toInt() == type
                && TranslateManager::instance()->getLangNameMap().value(type) == action->text()) {
                return action;
            }
        }
    }
    return nullptr;
}

} // namespace

// The nine catalogues are complete and sound, and the window speaks each of
// them at once when the language changes, without clipped texts.
class TestTranslations : public QObject
{
    Q_OBJECT
private:
    QString m_dir;
    MainWindow* m_window = nullptr;

    void chooseLanguage(int type)
    {
        QAction* action = languageAction(m_window, type);
        QVERIFY(action);
        action->trigger();
        TestSupport::settleLayouts();
    }

    void checkLayout(const QString& what)
    {
        const QStringList problems = layoutProblems(m_window);
        QVERIFY2(problems.isEmpty(), qPrintable(what + QStringLiteral(":\n") + problems.join(QLatin1Char('\n'))));
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        m_dir = TestSupport::makeWorkDir(QStringLiteral("translations"));
        GlobalManager* global = GlobalManager::instance();
        global->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        global->saveSettings(AppConfig::FILE_SAVE_PATH, m_dir + QStringLiteral("/a rather long output folder/for pictures"));
        global->saveSettings(AppConfig::APP_LANG, 0);
        TranslateManager::instance()->init();
    }

    void cleanupTestCase()
    {
        if (m_window) {
            m_window->close();
            delete m_window;
        }
    }

    void cataloguesAreCompleteCurrentAndSound()
    {
        const QString lupdate = lupdateProgram();
        QVERIFY2(!lupdate.isEmpty(), "lupdate is needed to compare the catalogues with the sources");
        for (const QString& lang : kShortNames) {
            const QString committed = QStringLiteral(GLIMMER_SOURCE_DIR "/resources/i18n/glimmer_%1.ts").arg(lang);
            QString error;
            const QList<Message> before = readCatalogue(committed, &error);
            QVERIFY2(error.isEmpty(), qPrintable(error));
            QVERIFY2(before.size() > 100, qPrintable(committed));

            // Refresh a copy from the sources: texts added or removed since show up.
            const QString copy = m_dir + QStringLiteral("/glimmer_%1.ts").arg(lang);
            QFile::remove(copy);
            QVERIFY(QFile::copy(committed, copy));
            QByteArray output;
            QCOMPARE(TestSupport::run(lupdate, {"-no-obsolete", "-locations", "none",
                                                QStringLiteral(GLIMMER_SOURCE_DIR "/src"), "-ts", copy},
                                      120000, &output),
                     0);
            const QList<Message> after = readCatalogue(copy, &error);
            QVERIFY2(error.isEmpty(), qPrintable(error));

            QSet<QString> keysBefore;
            for (const Message& m : before) {
                keysBefore << m.context + QLatin1Char('|') + m.source;
                QVERIFY2(m.type.isEmpty(), qPrintable(QStringLiteral("%1: %2 entry \"%3\"").arg(lang, m.type, m.source)));
                // Translations keep the placeholders and the markup; English is the source itself.
                for (const QString& text : m.translations) {
                    QVERIFY2(placeholders(text) == placeholders(m.source) && tags(text) == tags(m.source),
                             qPrintable(QStringLiteral("%1: \"%2\" became \"%3\"").arg(lang, m.source, text)));
                }
                QVERIFY(lang != QLatin1String("en") || m.numerus || m.source.at(0).unicode() >= 0x80
                        || m.translations.constFirst() == m.source);
            }
            QSet<QString> keysAfter;
            for (const Message& m : after) {
                keysAfter << m.context + QLatin1Char('|') + m.source;
                QVERIFY2(m.type.isEmpty(),
                         qPrintable(QStringLiteral("%1: \"%2\" (%3) is not translated").arg(lang, m.source, m.context)));
                QVERIFY2(!m.translations.isEmpty(), qPrintable(m.source));
                for (const QString& text : m.translations) {
                    QVERIFY2(!text.trimmed().isEmpty(),
                             qPrintable(QStringLiteral("%1: empty translation of \"%2\"").arg(lang, m.source)));
                }
            }
            const QSet<QString> vanished = keysBefore - keysAfter;
            QVERIFY2(vanished.isEmpty(), qPrintable(lang + QStringLiteral(": entries no longer in the sources: ")
                                                    + QStringList(vanished.values()).join(QStringLiteral(", "))));
            QCOMPARE(keysAfter.size(), keysBefore.size());
        }
    }

    void startUpChoice_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("expected");
        QTest::newRow("de_DE") << "de_DE" << -1 << int(TranslateManager::German);
        QTest::newRow("en_US") << "en_US" << -1 << int(TranslateManager::English);
        QTest::newRow("pt_BR") << "pt_BR" << -1 << int(TranslateManager::Portuguese);
        // Country parts are capitals: no Chinese or Japanese match by locale.
        QTest::newRow("zh_CN") << "zh_CN" << -1 << int(TranslateManager::English);
        QTest::newRow("zh_HK") << "zh_HK" << -1 << int(TranslateManager::English);
        QTest::newRow("ja_JP") << "ja_JP" << -1 << int(TranslateManager::English);
        QTest::newRow("stored wins") << "de_DE" << 8 << int(TranslateManager::Japanese);
        QTest::newRow("stored zero") << "fr_FR" << 0 << int(TranslateManager::English);
        QTest::newRow("C locale") << "C" << -1 << int(TranslateManager::English);
    }

    void startUpChoice()
    {
        QFETCH(QString, locale);
        QFETCH(int, stored);
        QFETCH(int, expected);
        QCOMPARE(TranslateManager::chooseLangType(locale, stored), expected);
    }

    void compiledCataloguesAreEmbedded()
    {
        const QMap<int, QString> files = TranslateManager::instance()->getLangFileMap();
        const QStringList expected{"Select all", "Alle auswählen", "Seleccionar todo", "Tout sélectionner",
                                   "Seleziona tutto", "Selecionar tudo", "全选", "全選", "すべて選択"};
        for (int type = 0; type < 9; ++type) {
            QTranslator translator;
            QVERIFY2(translator.load(files.value(type)), qPrintable(files.value(type)));
            QCOMPARE(translator.translate("CaptionWidget", "Select all"), expected.at(type));
            // The player's button and the caption panel's do different things.
            QVERIFY2(translator.translate("VideoPlayWidget", "Capture selected")
                         != translator.translate("CaptionWidget", "Capture checked"),
                     qPrintable(files.value(type)));
        }
    }

    void emptyWindowFitsEveryLanguage()
    {
        m_window = TestSupport::showMainWindow();
        // The caption panel shows its empty state: language choice and the three ways to captions.
        m_window->showCaptionWidget(true);
        for (int type = 0; type < 9; ++type) {
            chooseLanguage(type);
            checkLayout(QStringLiteral("empty window in %1").arg(kShortNames.at(type)));
        }
        chooseLanguage(TranslateManager::English);
    }

    void menuSwitchRetranslatesTheOpenWindow()
    {
        const QString video = m_dir + QStringLiteral("/holiday.mp4");
        QVERIFY(TestSupport::makeVideo(video, 6.0, 1280, 720, 25, true));
        const QString srt = m_dir + QStringLiteral("/holiday.srt");
        QVERIFY(TestSupport::writeFile(srt, TestSupport::srt({{1000, 2000, "First caption"},
                                                             {3000, 4000, "Second caption"}})));
        QVERIFY(TestSupport::openVideo(m_window, video));
        m_window->loadCaption(srt);
        QTRY_COMPARE_WITH_TIMEOUT(CaptionManager::instance()->getCaptions().size(), 2, 30000);
        QSignalSpy captured(m_window, &MainWindow::captureSelectFinished);
        m_window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
        QVERIFY(captured.wait(60000));
        QCOMPARE(m_window->imagesWidget()->items().size(), 2);

        auto texts = [this]() {
            return QStringList{
                m_window->titleBar()->button(TitleBar::OpenVideo)->text(),
                m_window->captionWidget()->findChild<QCheckBox*>(QStringLiteral("select_all"))->text(),
                m_window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->text(),
                firstButtonText(m_window->imagesWidget()),
                m_window->previewWidget()->saveFileBar()->exportButton()->text(),
                m_window->previewWidget()->findChild<QRadioButton*>()->text(),
                m_window->previewWidget()->propertyItem(PropertyItem::Width)->findChild<QLabel*>()->text(),
                m_window->messageDialog()->findChild<QPushButton*>()->text(),
            };
        };
        const QStringList english{"Open video", "Select all (2/2)", "Capture selected", "Apply Current Style",
                                  "Export",     "Grid",             "Width",            "OK"};
        QCOMPARE(texts(), english);

        QSignalSpy notify(TranslateManager::instance(), &TranslateManager::notify);
        QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
        chooseLanguage(TranslateManager::German);
        QVERIFY(notify.count() == 1 && notify.at(0).at(0).toInt() == int(TranslateManager::German));
        QCOMPARE(m_window->translator()->language(), QStringLiteral("de_DE"));
        QCOMPARE(TestSupport::eventValues(bus, AppConfig::SETTING_CHANGE), QList<QVariant>{AppConfig::APP_LANG});
        // The choice is kept: the next start follows the menu whatever the system locale.
        TranslateManager::instance()->init();
        QCOMPARE(TranslateManager::instance()->getLangType(), TranslateManager::German);
        QCOMPARE(TranslateManager::instance()->getCurrentShortName(), QStringLiteral("de"));
        const QStringList german{"Video öffnen", "Alle auswählen (2/2)", "Ausgewählte erfassen", "Stil übernehmen",
                                 "Exportieren",  "Raster",               "Breite",             "OK"};
        QCOMPARE(texts(), german);
        QCOMPARE(m_window->imagesWidget()->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->text(),
                 QStringLiteral("2 Bilder"));
        QCOMPARE(m_window->captionWidget()->findChild<QLabel*>(QStringLiteral("sub_title"))->text(),
                 QStringLiteral("Untertitel (2)"));

        chooseLanguage(TranslateManager::English);
        QCOMPARE(texts(), english);
    }

    void windowWithAVideoFitsEveryLanguage()
    {
        // Japanese and German are kept as screenshots.
        const QString dir = QStringLiteral(GLIMMER_BINARY_DIR "/screenshots");
        QDir().mkpath(dir);
        const QMap<int, QString> shots{{TranslateManager::Japanese, QStringLiteral("mainwindow_ja.png")},
                                       {TranslateManager::German, QStringLiteral("mainwindow_de.png")}};
        for (int type = 0; type < 9; ++type) {
            chooseLanguage(type);
            QVERIFY(!shots.contains(type) || m_window->grab().save(dir + QLatin1Char('/') + shots.value(type)));
            checkLayout(QStringLiteral("window with a video in %1").arg(kShortNames.at(type)));
        }
        chooseLanguage(TranslateManager::English);
    }
};

QTEST_MAIN(TestTranslations)
#include "test_translations.moc"
