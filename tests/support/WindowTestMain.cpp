// The main function of the tests of windows: a program of its own, without a display and apart from the user's files.

#include "frame/platform/Application.h"
#include "frame/platform/Fatal.h"
#include "tests/support/OffscreenMessages.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QTemporaryDir>

// Qt's libraries are built without the clean-up of exceptions: a run-time error on its way through them to the
// Application leaves copies of mouse events behind. Fontconfig keeps what it has read until the program ends.
extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:QMutableEventPoint\nleak:QtSharedPointer::ExternalRefCountData\nleak:QArrayData::allocate\nleak:"
           "libfontconfig\n";
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(place, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    qputenv("LC_ALL", "C");
    QLocale::setDefault(QLocale::c());

    DropOffscreenMessages();
    Application application(argc, argv);
    Application::setStyle(QStringLiteral("Fusion"));
    const TestSettings settings(home.filePath(QStringLiteral("settings.ini")).toStdString());
    const ScopedPort end(FatalPort(), [](const RuntimeError &error) {
        ADD_FAILURE() << "A run-time error that no trap took: " << error.Number() << ", " << error.what();
    });
    return RUN_ALL_TESTS();
}
