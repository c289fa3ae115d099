// Modules of the program: what needs a large library that few moments need is loaded with the first of them.
#pragma once

class QObject;

namespace mModules {

/// The object of the module of that file name, "tarnival-sounds.so", which lies beside the program, as built,
/// or in its library folder, as installed. It is made with the first call. nullptr where it cannot be loaded.
[[nodiscard]] QObject* Load(const char* file);

}  // namespace mModules
