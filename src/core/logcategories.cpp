#include "logcategories.h"

Q_LOGGING_CATEGORY(lcCore, "glimmer.core")
Q_LOGGING_CATEGORY(lcCaptions, "glimmer.captions")
Q_LOGGING_CATEGORY(lcPlayer, "glimmer.player")
Q_LOGGING_CATEGORY(lcImages, "glimmer.images")
Q_LOGGING_CATEGORY(lcNetwork, "glimmer.network")
Q_LOGGING_CATEGORY(lcUi, "glimmer.ui")
Q_LOGGING_CATEGORY(lcApp, "glimmer.app")
Q_LOGGING_CATEGORY(lcCli, "glimmer.cli")
