#ifndef MODULELOADER_H
#define MODULELOADER_H

#include <QList>
#include <QObject>
#include <QStringList>

class ModuleInterface;
class QPluginLoader;

// Finds and loads the host's plug-in modules. Every library in the folder is
// tried; one that does not load, or whose instance is not a ModuleInterface,
// is reported with the reason and unloaded again. Loaded modules stay loaded
// until unload_all().
class ModuleLoader : public QObject
{
    Q_OBJECT

public:
    struct Module
    {
        ModuleInterface* module;
        QString file;
        QPluginLoader* loader;
    };

    explicit ModuleLoader(QObject* parent = nullptr);
    ~ModuleLoader() override;

    // The folders a host without --plugin-dir loads from: next to the
    // executable and the installed plug-in folder, those of them that hold a
    // module; only the first when none does, so that its absence is told.
    static QStringList default_folders();

    // Loads every library in the folder, in file name order; returns how
    // many turned out to be modules.
    int load_folder(const QString& folder);
    // Loads one file; null if it is no module (see problems()).
    ModuleInterface* load_file(const QString& path);
    // Deletes the module objects and unloads their libraries.
    void unload_all();

    const QList<Module>& modules() const { return loaded; }
    // One sentence per file that could not be used, or folder that was not there.
    QStringList problems() const { return reported; }

private:
    void report(const QString& problem);

    QList<Module> loaded;
    QStringList reported;
};

#endif // MODULELOADER_H
