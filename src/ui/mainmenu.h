#ifndef MAINMENU_H
#define MAINMENU_H

#include <QMap>
#include <QMenu>
#include <QPointer>

class AboutDialog;
class QActionGroup;

// The title bar's menu: file actions, output folder and format, interface
// language, updates, registration, About, log folder and Quit.
class MainMenu : public QMenu
{
    Q_OBJECT
public:
    enum MenuType {
        MenuOpenVideo = 0,
        MenuAddSubtitle = 1,
        MenuCaptionPanel = 2,
        MenuOutputFolder = 3,
        MenuCheckUpdate = 4,
        MenuRegister = 5,
        MenuAbout = 6,
        MenuLogFolder = 7,
        MenuQuit = 8,
        MenuSpeechEngine = 9,
    };
    Q_ENUM(MenuType)

    explicit MainMenu(QWidget* parent);

    QAction* action(int type) const { return m_actions.value(type); }
    // The texts of the actions, in the current interface language.
    static QMap<int, QString> texts();
    void retranslate();
    // The actions that only open a dialog or a folder: output folder, speech
    // engine, check for updates, registration, About, log folder.
    void openDialog(int type);
    // Actions of the window's flows (undo, redo, saving captions), shown
    // after the file actions.
    void addEditActions(const QList<QAction*>& actions);

signals:
    void menuTapped(int type);
    void languageTapped(int type);

private:
    void refreshChecks();

    QMap<int, QAction*> m_actions;
    QMenu* m_formatMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QActionGroup* m_formatGroup = nullptr;
    QActionGroup* m_languageGroup = nullptr;
    QPointer<AboutDialog> m_aboutDialog;
};

#endif // MAINMENU_H
