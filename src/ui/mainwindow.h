#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QStringList>
#include <QVariant>
#include <QWidget>

class QTranslator;

// The application's single top-level window.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Work that follows the first show: first-run step, a video named on the command line.
    void startUp(const QStringList& arguments);

    void changeLangByType(int type);
    void languageMenuTapByType(int type);
    QTranslator* translator() const { return m_translator; }

public slots:
    void globalEventHandle(QString eventName, QVariant value);

private:
    QTranslator* m_translator = nullptr;
};

#endif // MAINWINDOW_H
