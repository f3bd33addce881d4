#include "confirmation.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

bool Confirmation::ask(QWidget* parent, const QString& title, const QString& text, const QString& acceptText)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, parent);
    box.setObjectName(QLatin1String(kObjectName));
    QPushButton* accept = box.addButton(acceptText, QMessageBox::DestructiveRole);
    QPushButton* cancel = box.addButton(QCoreApplication::translate("Confirmation", "Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == accept;
}
