#include "speechenginedialog.h"

#include "appconfig.h"
#include "httpmanager.h"
#include "speechenginetest.h"
#include "speechservice.h"
#include "translatemanager.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <QVBoxLayout>

SpeechEngineDialog::SpeechEngineDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
    , m_test(new SpeechEngineTest(this))
{
    setObjectName(QStringLiteral("speech_engine_dialog"));
    m_builtIn = new QRadioButton(this);
    m_builtIn->setObjectName(QStringLiteral("speech_engine_builtin"));
    m_server = new QRadioButton(this);
    m_server->setObjectName(QStringLiteral("speech_engine_server"));
    m_url = new QLineEdit(this);
    m_url->setObjectName(QStringLiteral("speech_engine_url"));
    m_url->setPlaceholderText(QStringLiteral("http://127.0.0.1:8080"));
    m_model = new QLineEdit(this);
    m_model->setObjectName(QStringLiteral("speech_engine_model"));
    m_model->setPlaceholderText(AppConfig::DEFAULT_SPEECH_ENGINE_MODEL);
    m_key = new QLineEdit(this);
    m_key->setObjectName(QStringLiteral("speech_engine_key"));
    m_key->setEchoMode(QLineEdit::Password);
    m_urlLabel = new QLabel(this);
    m_modelLabel = new QLabel(this);
    m_keyLabel = new QLabel(this);
    auto* form = new QFormLayout;
    form->addRow(m_urlLabel, m_url);
    form->addRow(m_modelLabel, m_model);
    form->addRow(m_keyLabel, m_key);
    form->setContentsMargins(AppConfig::rate(24, 0, 0, 0));
    m_note = new QLabel(this);
    m_note->setWordWrap(true);
    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("speech_engine_result"));
    m_result->setWordWrap(true);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_testButton = new QPushButton(this);
    m_testButton->setObjectName(QStringLiteral("speech_engine_test"));
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);

    auto* testRow = new QHBoxLayout;
    testRow->addWidget(m_testButton, 0, Qt::AlignTop);
    testRow->addWidget(m_result, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(20, 16, 20, 12));
    layout->addWidget(m_builtIn);
    layout->addWidget(m_server);
    layout->addLayout(form);
    layout->addWidget(m_note);
    layout->addLayout(testRow);
    layout->addWidget(m_buttons);
    setMinimumWidth(AppConfig::rate(460));

    connect(m_builtIn, &QRadioButton::toggled, this, &SpeechEngineDialog::updateFields);
    connect(m_url, &QLineEdit::textChanged, this, &SpeechEngineDialog::updateFields);
    connect(m_testButton, &QPushButton::clicked, this, &SpeechEngineDialog::runTest);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &SpeechEngineDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &SpeechEngineDialog::reject);
    connect(m_test, &SpeechEngineTest::finished, this, [this](bool ok, const QString& message) {
        m_result->setText((ok ? tr("Works: %1") : tr("Failed: %1")).arg(message));
        updateFields();
    });
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &SpeechEngineDialog::retranslate);
    setEngine(SpeechEngine::stored());
    retranslate();
}

SpeechEngineDialog* SpeechEngineDialog::showFor(QWidget* window)
{
    auto* dialog = window ? window->findChild<SpeechEngineDialog*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (!dialog) {
        dialog = new SpeechEngineDialog(window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->open();
    dialog->raise();
    return dialog;
}

SpeechEngine SpeechEngineDialog::engine() const
{
    SpeechEngine engine;
    engine.kind = m_server->isChecked() ? SpeechEngine::Server : SpeechEngine::BuiltIn;
    engine.url = m_url->text().trimmed();
    engine.model = m_model->text().trimmed();
    engine.key = m_key->text().trimmed();
    return engine;
}

void SpeechEngineDialog::setEngine(const SpeechEngine& engine)
{
    (engine.kind == SpeechEngine::Server ? m_server : m_builtIn)->setChecked(true);
    m_url->setText(engine.url);
    m_model->setText(engine.model);
    m_key->setText(engine.key);
    updateFields();
}

QString SpeechEngineDialog::testResult() const
{
    return m_result->text();
}

void SpeechEngineDialog::retranslate()
{
    setWindowTitle(tr("Speech engine"));
    m_builtIn->setText(tr("Built-in (offline, English only)"));
    m_server->setText(tr("Transcription server (OpenAI-compatible API)"));
    m_urlLabel->setText(tr("Address:"));
    m_modelLabel->setText(tr("Model:"));
    m_keyLabel->setText(tr("Key:"));
    m_key->setPlaceholderText(tr("none"));
    m_testButton->setText(tr("Test"));
    m_note->setText(SpeechEngine::environmentOverrides()
                        ? tr("GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server "
                             "whatever is chosen here.")
                        : QString());
    m_note->setVisible(SpeechEngine::environmentOverrides());
    updateFields();
}

void SpeechEngineDialog::updateFields()
{
    const bool server = m_server->isChecked();
    for (QWidget* field : {static_cast<QWidget*>(m_url), static_cast<QWidget*>(m_model), static_cast<QWidget*>(m_key)}) {
        field->setEnabled(server);
    }
    const QUrl url = QUrl::fromUserInput(m_url->text().trimmed());
    const bool usable = !server || (url.isValid() && !url.host().isEmpty()
                                    && (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")));
    m_testButton->setEnabled(usable && !m_test->isRunning());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(usable);
}

void SpeechEngineDialog::runTest()
{
    m_result->setText(tr("Testing..."));
    SpeechEngine tried = engine();
    if (tried.kind == SpeechEngine::Server) {
        tried.url = QUrl::fromUserInput(tried.url).toString();
    }
    m_test->start(tried);
    updateFields();
}

void SpeechEngineDialog::accept()
{
    m_test->cancel();
    SpeechEngine chosen = engine();
    if (chosen.kind == SpeechEngine::Server) {
        chosen.url = QUrl::fromUserInput(chosen.url).toString();
    }
    if (chosen != SpeechEngine::stored()) {
        chosen.store();
        // The service restarts with the engine and tells its languages anew.
        SpeechService* service = SpeechService::instance();
        service->restart();
        service->fetchLanguages(HttpManager::instance()->speechBaseUrl(), [](bool, const QString&) {});
    }
    QDialog::accept();
}

void SpeechEngineDialog::reject()
{
    m_test->cancel();
    QDialog::reject();
}
