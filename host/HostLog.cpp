#include "HostLog.h"

Q_LOGGING_CATEGORY(lcHostLink, "norvane.host.link", QtInfoMsg)
Q_LOGGING_CATEGORY(lcHostMessages, "norvane.host.messages", QtInfoMsg)
Q_LOGGING_CATEGORY(lcHostModules, "norvane.host.modules", QtInfoMsg)
