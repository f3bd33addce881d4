#ifndef SAVEFILEBAR_H
#define SAVEFILEBAR_H

#include <QVariant>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The output settings bar: output folder with its chooser, picture format and
// the export button; optionally a "Select all" check box. It shows the stored
// "file_save_path" and "file_extension" and follows every change of them.
class SaveFileBar : public QWidget
{
    Q_OBJECT
public:
    explicit SaveFileBar(bool withSelectAll, QWidget* parent = nullptr);

    void changeOutputDir(const QString& dir);
    void changeFileExtension(const QString& ext);
    QString outputDir() const;
    QString fileExtension() const;

    void setButtonEnabled(bool enabled);
    // Sets the "Select all" box without announcing it.
    void setSelectAllChecked(bool checked);

    QPushButton* exportButton() const { return m_exportButton; }
    QPushButton* chooseButton() const { return m_chooseButton; }
    QComboBox* formatBox() const { return m_formatBox; }
    QCheckBox* selectAllBox() const { return m_selectAllBox; }

signals:
    void selectAllSignal(bool checked);
    // Carries the chosen format.
    void exportButtonTap(QString ext);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void globalEventHandle(QString eventName, QVariant value);
    void chooseDirHandle();

private:
    void retranslate();
    // Shows the folder shortened in the middle to the field's width.
    void updateDirText();

    QCheckBox* m_selectAllBox = nullptr;
    QLabel* m_dirLabel = nullptr;
    QLabel* m_formatLabel = nullptr;
    QLineEdit* m_dirEdit = nullptr;
    QString m_outputDir;
    QPushButton* m_chooseButton = nullptr;
    QComboBox* m_formatBox = nullptr;
    QPushButton* m_exportButton = nullptr;
};

#endif // SAVEFILEBAR_H
