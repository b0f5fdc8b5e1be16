#include "ModuleLoader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>
#include <iterator>

#include "HostLog.h"
#include "module/ModuleInterface.h"

ModuleLoader::ModuleLoader(QObject* parent) : QObject(parent)
{
}

ModuleLoader::~ModuleLoader()
{
    unload_all();
}

QStringList ModuleLoader::default_folders()
{
    const QString own = QCoreApplication::applicationDirPath();
    const QStringList candidates{own, QDir::cleanPath(own + QStringLiteral("/" NORVANE_PLUGIN_RELATIVE_DIR))};
    // Only folders holding a module of ours by its metadata (read without
    // loading): an installed host sits in bin/, beside unrelated libraries.
    const auto holds_module = [](const QString& folder) {
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Readable);
        return std::any_of(files.begin(), files.end(), [](const QFileInfo& file) {
            return QLibrary::isLibrary(file.fileName())
                   && QPluginLoader(file.absoluteFilePath()).metaData().value(QStringLiteral("IID")).toString()
                          == QLatin1String(ModuleInterface_iid);
        });
    };
    QStringList found;
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(found), holds_module);
    return found.isEmpty() ? candidates.mid(0, 1) : found;
}

void ModuleLoader::report(const QString& problem)
{
    qCWarning(lcHostModules).noquote() << problem;
    reported << problem;
}

int ModuleLoader::load_folder(const QString& folder)
{
    const QDir dir(folder);
    if (!dir.exists()) {
        report(tr("The plug-in folder %1 does not exist.").arg(QDir::toNativeSeparators(folder)));
        return 0;
    }
    int count = 0;
    const QFileInfoList files = dir.entryInfoList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QFileInfo& file : files) {
        if (QLibrary::isLibrary(file.fileName()) && load_file(file.absoluteFilePath()))
            ++count;
    }
    return count;
}

ModuleInterface* ModuleLoader::load_file(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    for (const Module& module : qAsConst(loaded))
        if (module.file == canonical)
            return module.module;

    auto* loader = new QPluginLoader(path, this);
    QObject* instance = loader->instance();
    if (!instance) {
        report(tr("%1 cannot be loaded: %2").arg(QFileInfo(path).fileName(), loader->errorString()));
        delete loader;
        return nullptr;
    }
    auto* module = qobject_cast<ModuleInterface*>(instance);
    if (!module) {
        const QString iid = loader->metaData().value(QStringLiteral("IID")).toString();
        QString problem = tr("%1 is not a module of this host: it offers \"%2\", not \"%3\"")
                              .arg(QFileInfo(path).fileName(), iid, QStringLiteral(ModuleInterface_iid));
        // After a load that worked the loader has nothing to add.
        if (loader->errorString() != QLatin1String("Unknown error"))
            problem += QStringLiteral(" (%1)").arg(loader->errorString());
        report(problem);
        loader->unload();
        delete loader;
        return nullptr;
    }
    loaded << Module{module, canonical.isEmpty() ? path : canonical, loader};
    qCDebug(lcHostModules).noquote() << tr("Loaded %1 %2 from %3")
                                           .arg(module->get_module_name(), module->get_module_version(), path);
    return module;
}

void ModuleLoader::unload_all()
{
    for (const Module& module : qAsConst(loaded)) {
        module.loader->unload();
        delete module.loader;
    }
    loaded.clear();
}
