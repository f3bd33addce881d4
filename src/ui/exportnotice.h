#ifndef EXPORTNOTICE_H
#define EXPORTNOTICE_H

#include <QFrame>
#include <QString>
#include <QStringList>

class QLabel;
class QPushButton;

// A bar at the foot of the main window that says where an export went, with
// a button that opens that folder: many desktops have no file manager that
// answers the reveal request, and a read-only output folder sends the
// pictures elsewhere.
class ExportNotice : public QFrame
{
    Q_OBJECT
public:
    explicit ExportNotice(QWidget* window);

    // files: the pictures written; chosen: the output folder that was set.
    void showExport(const QStringList& files, const QString& chosen);
    QString text() const;
    QString folder() const { return m_folder; }
    QPushButton* openButton() const { return m_openButton; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    void retranslate();

    QLabel* m_label;
    QPushButton* m_openButton;
    QPushButton* m_closeButton;
    QString m_folder;
};

#endif // EXPORTNOTICE_H
