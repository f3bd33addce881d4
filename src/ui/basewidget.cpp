#include "basewidget.h"

#include "translatemanager.h"

BaseWidget::BaseWidget(QWidget* parent)
    : QWidget(parent)
{
    connect(TranslateManager::instance(), &TranslateManager::notify, this, [this](int) { changeLang(); });
}

void BaseWidget::changeLang()
{
}
