// SPDX-License-Identifier: MIT
//
// Finds the modules beside the program and loads them.
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QPluginLoader>

#include "print_module.h"
#include "sound_module.h"

namespace vatro {

namespace {

Q_LOGGING_CATEGORY(lcModules, "vatro.modules", QtWarningMsg)

template <class Module>
Module* Load(const QString& name) {
    // Qt adds the ending of the system's libraries. It keeps the library loaded until the process ends.
    QPluginLoader loader(QCoreApplication::applicationDirPath() + u'/' + name);
    auto* const module = qobject_cast<Module*>(loader.instance());
    if (module == nullptr) qCWarning(lcModules).noquote() << name << "cannot be loaded:" << loader.errorString();
    return module;
}

}  // namespace

SoundModule* LoadSoundModule() {
    return Load<SoundModule>(QStringLiteral("vatro-sound"));
}

PrintModule* LoadPrintModule() {
    return Load<PrintModule>(QStringLiteral("vatro-print"));
}

}  // namespace vatro
