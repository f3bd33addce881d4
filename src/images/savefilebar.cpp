#include "savefilebar.h"

#include "appconfig.h"
#include "globalmanager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

SaveFileBar::SaveFileBar(bool withSelectAll, QWidget* parent)
    : QWidget(parent)
    , m_dirEdit(new QLineEdit(this))
    , m_chooseButton(new QPushButton(tr("Change"), this))
    , m_formatBox(new QComboBox(this))
    , m_exportButton(new QPushButton(tr("Export"), this))
{
    setObjectName(QStringLiteral("save_file_bar"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(10), AppConfig::rate(6), AppConfig::rate(10), AppConfig::rate(6));
    layout->setSpacing(AppConfig::rate(8));

    if (withSelectAll) {
        m_selectAllBox = new QCheckBox(tr("Select all"), this);
        layout->addWidget(m_selectAllBox);
        connect(m_selectAllBox, &QCheckBox::clicked, this, &SaveFileBar::selectAllSignal);
    }

    layout->addWidget(new QLabel(tr("Output folder:"), this));
    m_dirEdit->setReadOnly(true);
    m_dirEdit->setMinimumWidth(AppConfig::rate(160));
    layout->addWidget(m_dirEdit, 1);
    layout->addWidget(m_chooseButton);

    layout->addWidget(new QLabel(tr("Format:"), this));
    m_formatBox->addItems({AppConfig::FORMAT_PNG, AppConfig::FORMAT_JPG, AppConfig::FORMAT_WEBP});
    layout->addWidget(m_formatBox);

    m_exportButton->setObjectName(QStringLiteral("export_button"));
    m_exportButton->setCursor(Qt::PointingHandCursor);
    layout->addWidget(m_exportButton);

    GlobalManager* manager = GlobalManager::instance();
    changeOutputDir(manager->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString());
    changeFileExtension(manager->readSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_JPG).toString());

    connect(manager, &GlobalManager::globalEvent, this, &SaveFileBar::globalEventHandle);
    connect(m_chooseButton, &QPushButton::clicked, this, &SaveFileBar::chooseDirHandle);
    connect(m_formatBox, QOverload<int>::of(&QComboBox::activated), this, [this](int) {
        GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, m_formatBox->currentText());
    });
    connect(m_exportButton, &QPushButton::clicked, this,
            [this]() { emit exportButtonTap(m_formatBox->currentText()); });
}

void SaveFileBar::changeOutputDir(const QString& dir)
{
    m_dirEdit->setText(QDir::toNativeSeparators(dir));
    m_dirEdit->setToolTip(m_dirEdit->text());
    m_dirEdit->setCursorPosition(0);
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
    return QDir::fromNativeSeparators(m_dirEdit->text());
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
    GlobalManager* manager = GlobalManager::instance();
    if (key == AppConfig::FILE_SAVE_PATH) {
        changeOutputDir(manager->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString());
    } else if (key == AppConfig::FILE_EXTENSION) {
        changeFileExtension(manager->readSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_JPG).toString());
    }
}

void SaveFileBar::chooseDirHandle()
{
    const QString dir = QFileDialog::getExistingDirectory(this, tr("Choose the output folder"), outputDir());
    if (!dir.isEmpty()) {
        GlobalManager::instance()->saveSettings(AppConfig::FILE_SAVE_PATH, dir);
    }
}
