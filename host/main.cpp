// norvane-host: the desktop front end of the Norvane tracking controller.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <cstdio>
#include <memory>

#include "HostOptions.h"
#include "InProcessLink.h"
#include "MainWindow.h"
#include "ModuleLoader.h"
#include "TcpLink.h"
#include "TourRunner.h"
#include "simulator/WallClock.h"

namespace {

bool has_display()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void say(const QString& text)
{
    std::fprintf(stderr, "norvane-host: %s\n", qPrintable(text));
}

std::unique_ptr<ControllerLink> make_link(const HostOptions& options, QString* error)
{
    if (options.uses_tcp()) {
        auto link = std::make_unique<TcpLink>(options.controller_host, options.controller_port);
        QString reason;
        // Not fatal: the link keeps trying, and the window says what is wrong.
        if (!link->connect_now(&reason))
            say(reason);
        return link;
    }
    auto link = std::make_unique<InProcessLink>(std::make_unique<WallClock>(options.speed));
    if (!options.scenario.isEmpty() && !link->load_scenario_file(options.scenario, error))
        return nullptr;
    return link;
}

// Qt's own texts (standard buttons, message boxes) and ours, host and
// modules alike, in the first of the user's languages that has a catalogue;
// none found leaves the texts as written.
void install_translators(QApplication* app)
{
    const QLocale locale = QLocale::system();
    const QString ours =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(NORVANE_TRANSLATIONS_RELATIVE_DIR));
    const struct {
        const char* name;
        QString folder;
    } catalogues[] = {{"qt", QLibraryInfo::location(QLibraryInfo::TranslationsPath)}, {"norvane", ours}};
    for (const auto& catalogue : catalogues) {
        auto* translator = new QTranslator(app);
        if (translator->load(locale, QString::fromLatin1(catalogue.name), QStringLiteral("_"), catalogue.folder))
            QApplication::installTranslator(translator);
        else
            delete translator;
    }
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures and --help need no screen: without a display the application
    // comes up offscreen, and only a real session is refused below.
    const bool can_show = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || has_display();
    if (!can_show)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("norvane-host"));
    QApplication::setApplicationVersion(QStringLiteral(NORVANE_HOST_VERSION));
    QApplication::setOrganizationName(QStringLiteral("Norvane"));
    install_translators(&app);

    HostOptions options;
    if (!options.parse(QApplication::arguments())) {
        say(options.error());
        say(QStringLiteral("see norvane-host --help"));
        return 2;
    }
    if (options.help_requested() || options.version_requested()) {
        std::printf("%s", options.help_requested()
                              ? qPrintable(options.help_text())
                              : qPrintable(QStringLiteral("norvane-host %1\n").arg(QApplication::applicationVersion())));
        return 0;
    }
    if (!can_show && options.tour_dir.isEmpty()) {
        say(QStringLiteral("there is no display ($DISPLAY and $WAYLAND_DISPLAY are empty). "
                           "Use --tour <folder> to save pictures of the window and the dialogs instead, "
                           "or set QT_QPA_PLATFORM=offscreen."));
        return 1;
    }

    QString error;
    std::unique_ptr<ControllerLink> link = make_link(options, &error);
    if (!link) {
        say(error);
        return 1;
    }
    if (!options.trace.isEmpty() && !link->open_trace(options.trace, &error)) {
        say(error);
        return 1;
    }

    MainWindow window(link.get());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/icons/norvane_64x64.png")));
    window.connect_controller();
    const QStringList plugin_dirs = options.plugin_dir.isEmpty() ? ModuleLoader::default_folders()
                                                                 : QStringList{options.plugin_dir};
    for (const QString& folder : plugin_dirs)
        window.load_modules_from(folder);
    window.show();

    if (options.tour_dir.isEmpty())
        return app.exec();

    int result = 0;
    QTimer::singleShot(0, &window, [&] {
        TourRunner tour(&window, options.tour_dir);
        const bool complete = tour.run();
        for (const QString& problem : tour.problems())
            say(problem);
        std::printf("Saved %d pictures into %s\n", int(tour.saved_files().size()),
                    qPrintable(QDir::toNativeSeparators(QFileInfo(options.tour_dir).absoluteFilePath())));
        result = complete ? 0 : 1;
        window.close();
    });
    app.exec();
    return result;
}
