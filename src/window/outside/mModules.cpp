// Looking for modules.
#include "window/outside/mModules.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace mModules {

QObject* Load(const char* file) {
    for (const char* folder : {".", TARNIVAL_MODULES}) {
        QPluginLoader loader(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                             QLatin1String(folder) + QLatin1Char('/') + QLatin1String(file));
        if (QObject* module = loader.instance()) return module;
    }
    return nullptr;
}

}  // namespace mModules
