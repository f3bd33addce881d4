#ifndef CONFIRMATION_H
#define CONFIRMATION_H

#include <QString>

class QWidget;

// A yes/no question before something is removed or discarded. Cancel is the
// default button, so a stray Return keeps everything.
class Confirmation
{
public:
    static constexpr const char* kObjectName = "confirmation";

    // True when the user chose acceptText.
    static bool ask(QWidget* parent, const QString& title, const QString& text, const QString& acceptText);
};

#endif // CONFIRMATION_H
