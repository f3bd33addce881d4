#ifndef BASEWIDGET_H
#define BASEWIDGET_H

#include <QWidget>

// Base of the main window's panels: reports its button clicks by id and
// retranslates its texts whenever the interface language changes.
class BaseWidget : public QWidget
{
    Q_OBJECT
public:
    explicit BaseWidget(QWidget* parent = nullptr);

public slots:
    // Sets every visible text again through tr(); panels override it.
    virtual void changeLang();

signals:
    void buttonClicked(int id);
};

#endif // BASEWIDGET_H
