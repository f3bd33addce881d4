#ifndef CAPTIONFILEFLOW_H
#define CAPTIONFILEFLOW_H

#include <QObject>
#include <QString>

class QWidget;

// Local subtitle files: choosing one, converting an SRT, loading it into the
// caption store.
class CaptionFileFlow : public QObject
{
    Q_OBJECT
public:
    explicit CaptionFileFlow(QWidget* window);

    // The open dialog; empty when cancelled.
    QString chooseFile();
    // Loads path into the caption store; finished() tells the outcome.
    void load(const QString& path);

signals:
    // assPath: the file the player should show (empty: nothing new to show);
    // problem: what the user should be told (empty when all went well).
    void finished(QString assPath, QString problem);

private:
    QWidget* m_window;
};

#endif // CAPTIONFILEFLOW_H
