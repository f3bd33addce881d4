#ifndef PROPERTYITEM_H
#define PROPERTYITEM_H

#include <QWidget>

class QLabel;
class QLineEdit;

// A labelled number field of the preview's output properties, known by its type:
// 0 width, 1 height, 2 X space, 3 Y space, 4 scale, 5 column.
class PropertyItem : public QWidget
{
    Q_OBJECT
public:
    enum PropertyType { Width = 0, Height = 1, XSpace = 2, YSpace = 3, Scale = 4, Column = 5 };
    Q_ENUM(PropertyType)

    PropertyItem(int type, const QString& title, const QString& unit, QWidget* parent = nullptr);

    int getType() const { return m_type; }
    QString getText() const;
    // Base-10 value of the text; anything that is not a number counts as 0.
    int getValue() const;
    // Replaces the text without announcing it as an edit.
    void setText(const QString& text);
    void setTitle(const QString& title);
    QLineEdit* lineEdit() const { return m_lineEdit; }
    QLabel* titleLabel() const { return m_titleLabel; }

signals:
    // The user typed into the field.
    void valueChangedSignal(int type, QString text);
    // The user left the field or pressed Return.
    void editFinishedSignal(int type);

private:
    int m_type;
    QLabel* m_titleLabel = nullptr;
    QLineEdit* m_lineEdit = nullptr;
    QLabel* m_unitLabel = nullptr;
};

#endif // PROPERTYITEM_H
