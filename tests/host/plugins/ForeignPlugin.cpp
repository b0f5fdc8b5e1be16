// A plug-in made for some other host: it loads, but offers an interface the
// Norvane host does not know.
#include <QObject>
#include <QtPlugin>

class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.other.host.Extension/1.0")
};

#include "ForeignPlugin.moc"
