#include "basewidget.h"

#include "translatemanager.h"

BaseWidget::BaseWidget(QWidget* parent)
    : QWidget(parent)
{
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &BaseWidget::changeLang);
}

void BaseWidget::changeLang(int type)
{
    Q_UNUSED(type)
}
