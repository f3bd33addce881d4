#ifndef BASEWIDGET_H
#define BASEWIDGET_H

#include <QWidget>

// Base of the panels: re-translates its texts when the interface language
// changes and reports its buttons by number.
class BaseWidget : public QWidget
{
    Q_OBJECT
public:
    explicit BaseWidget(QWidget* parent = nullptr);

signals:
    void buttonClicked(int id);

public slots:
    virtual void changeLang(int type);
};

#endif // BASEWIDGET_H
