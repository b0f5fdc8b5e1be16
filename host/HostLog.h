#ifndef HOSTLOG_H
#define HOSTLOG_H

#include <QLoggingCategory>

// The host's logging categories; enable with QT_LOGGING_RULES, for example
// "norvane.host.link.debug=true" to see every failed exchange on stderr.
Q_DECLARE_LOGGING_CATEGORY(lcHostLink)
Q_DECLARE_LOGGING_CATEGORY(lcHostMessages)
Q_DECLARE_LOGGING_CATEGORY(lcHostModules)

#endif // HOSTLOG_H
