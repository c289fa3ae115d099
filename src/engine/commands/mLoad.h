// Start and end of the program.
#pragma once

#include "engine/outside/windowlayer.h"

namespace mLoad {

/// Creates gData. The layer must outlive the program's objects.
void Main(const WindowLayer& layer);
/// The main window is going: a running game is recorded as lost, then everything is released.
void UnloadMain();
/// Tries once more to write what could not be written yet, and again for as long as the user wants it.
void WriteWaiting();
/// The same once more; then closes the help viewer and releases the objects.
void Shutdown();

}  // namespace mLoad
