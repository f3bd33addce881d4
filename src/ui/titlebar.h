#ifndef TITLEBAR_H
#define TITLEBAR_H

#include "basewidget.h"

#include <QMap>

class QAbstractButton;
class QLabel;
class QMenu;
class QToolButton;
class QPushButton;

// The window's own title bar: logo and title, the main actions, the settings
// menu, the licence button and the window buttons.
class TitleBar : public BaseWidget
{
    Q_OBJECT
public:
    enum ButtonType {
        OpenVideo = 0,
        Caption = 1,
        Menu = 2,
        Register = 3,
        Minimize = 4,
        Maximize = 5,
        Close = 6,
    };
    Q_ENUM(ButtonType)

    explicit TitleBar(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const;
    void setMenu(QMenu* menu);
    void changeRestoreButtonStatue(bool maximized);
    void showButtonByRegister(bool registered);
    QAbstractButton* button(ButtonType type) const;

signals:
    void titleBarButtonClicked(int type);

public slots:
    void changeLang(int type) override;

private:
    QToolButton* addButton(ButtonType type, const QString& icon, const QString& objectName);
    void retranslate();

    QLabel* m_logo = nullptr;
    QLabel* m_title = nullptr;
    QMap<int, QToolButton*> m_buttons;
    bool m_maximized = false;
};

#endif // TITLEBAR_H
