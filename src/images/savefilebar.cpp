#include "savefilebar.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "settings.h"
#include "translatemanager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

SaveFileBar::SaveFileBar(bool withSelectAll, QWidget* parent)
    : QWidget(parent)
    , m_dirEdit(new QLineEdit(this))
    , m_chooseButton(new QPushButton(this))
    , m_formatBox(new QComboBox(this))
    , m_exportButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("save_file_bar"));
    // The folder on the first row, the format and the export on the second: a
    // long path or a long translation never squeezes the buttons.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(10), AppConfig::rate(6), AppConfig::rate(10), AppConfig::rate(6));
    layout->setSpacing(AppConfig::rate(6));
    auto* folderRow = new QHBoxLayout();
    folderRow->setSpacing(AppConfig::rate(8));
    auto* exportRow = new QHBoxLayout();
    exportRow->setSpacing(AppConfig::rate(8));
    layout->addLayout(folderRow);
    layout->addLayout(exportRow);

    m_dirLabel = new QLabel(this);
    folderRow->addWidget(m_dirLabel);
    m_dirEdit->setReadOnly(true);
    m_dirEdit->setMinimumWidth(AppConfig::rate(120));
    m_dirEdit->installEventFilter(this);
    folderRow->addWidget(m_dirEdit, 1);
    folderRow->addWidget(m_chooseButton);

    if (withSelectAll) {
        m_selectAllBox = new QCheckBox(this);
        exportRow->addWidget(m_selectAllBox);
        exportRow->addSpacing(AppConfig::rate(8));
        connect(m_selectAllBox, &QCheckBox::clicked, this, &SaveFileBar::selectAllSignal);
    }
    m_formatLabel = new QLabel(this);
    exportRow->addWidget(m_formatLabel);
    m_formatBox->addItems({AppConfig::FORMAT_PNG, AppConfig::FORMAT_JPG, AppConfig::FORMAT_WEBP});
    exportRow->addWidget(m_formatBox);
    exportRow->addStretch(1);

    m_exportButton->setObjectName(QStringLiteral("export_button"));
    m_exportButton->setCursor(Qt::PointingHandCursor);
    m_exportButton->setMinimumWidth(AppConfig::rate(90));
    exportRow->addWidget(m_exportButton);

    GlobalManager* manager = GlobalManager::instance();
    changeOutputDir(Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString());
    changeFileExtension(Settings::instance()->value(AppConfig::FILE_EXTENSION).toString());
    // The export worker has a default of its own: store the format shown, so
    // that what the user sees is what gets written.
    if (!Settings::instance()->contains(AppConfig::FILE_EXTENSION)) {
        manager->saveSettings(AppConfig::FILE_EXTENSION, m_formatBox->currentText());
    }

    connect(manager, &GlobalManager::globalEvent, this, &SaveFileBar::globalEventHandle);
    connect(m_chooseButton, &QPushButton::clicked, this, &SaveFileBar::chooseDirHandle);
    connect(m_formatBox, QOverload<int>::of(&QComboBox::activated), this, [this](int) {
        GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, m_formatBox->currentText());
    });
    connect(m_exportButton, &QPushButton::clicked, this,
            [this]() { emit exportButtonTap(m_formatBox->currentText()); });
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &SaveFileBar::retranslate);
    retranslate();
}

void SaveFileBar::retranslate()
{
    if (m_selectAllBox) {
        m_selectAllBox->setText(tr("Select all"));
    }
    m_dirLabel->setText(tr("Output folder:"));
    m_chooseButton->setText(tr("Change"));
    m_formatLabel->setText(tr("Format:"));
    m_exportButton->setText(tr("Export"));
}

void SaveFileBar::changeOutputDir(const QString& dir)
{
    m_outputDir = QDir::toNativeSeparators(dir);
    m_dirEdit->setToolTip(m_outputDir);
    updateDirText();
}

void SaveFileBar::updateDirText()
{
    // The field's text margins and frame take part of its width.
    const int room = m_dirEdit->contentsRect().width() - AppConfig::rate(16);
    m_dirEdit->setText(m_dirEdit->fontMetrics().elidedText(m_outputDir, Qt::ElideMiddle, qMax(room, 0)));
    m_dirEdit->setCursorPosition(0);
}

bool SaveFileBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_dirEdit && (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)) {
        updateDirText();
    }
    return QWidget::eventFilter(watched, event);
}

void SaveFileBar::changeFileExtension(const QString& ext)
{
    const int index = m_formatBox->findText(ext.toUpper());
    if (index >= 0) {
        m_formatBox->setCurrentIndex(index);
    }
}

QString SaveFileBar::outputDir() const
{
    return QDir::fromNativeSeparators(m_outputDir);
}

QString SaveFileBar::fileExtension() const
{
    return m_formatBox->currentText();
}

void SaveFileBar::setButtonEnabled(bool enabled)
{
    m_exportButton->setEnabled(enabled);
    m_chooseButton->setEnabled(enabled);
    m_formatBox->setEnabled(enabled);
    if (m_selectAllBox) {
        m_selectAllBox->setEnabled(enabled);
    }
}

void SaveFileBar::setSelectAllChecked(bool checked)
{
    if (m_selectAllBox) {
        m_selectAllBox->setChecked(checked);
    }
}

void SaveFileBar::globalEventHandle(QString eventName, QVariant value)
{
    if (eventName != AppConfig::SETTING_CHANGE) {
        return;
    }
    const QString key = value.toString();
    if (key == AppConfig::FILE_SAVE_PATH) {
        changeOutputDir(Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString());
    } else if (key == AppConfig::FILE_EXTENSION) {
        changeFileExtension(Settings::instance()->value(AppConfig::FILE_EXTENSION).toString());
    }
}

void SaveFileBar::chooseDirHandle()
{
    const QString dir = QFileDialog::getExistingDirectory(this, tr("Choose the output folder"), outputDir());
    if (!dir.isEmpty()) {
        GlobalManager::instance()->saveSettings(AppConfig::FILE_SAVE_PATH, dir);
    }
}
