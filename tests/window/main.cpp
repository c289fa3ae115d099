// Runs the window tests: without a screen and away from the user's folders, however they are started.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString path = home.filePath(QLatin1String(folder));
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(folder, path.toUtf8());
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // It says so whenever a window is shown without a screen.
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
