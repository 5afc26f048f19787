#pragma once

class QQmlEngine;

namespace OndelControls {

/// Makes an engine ready for the views of all rooms: it finds their modules inside the program and has no
/// network. Whatever a view is given to show, nothing is loaded over a network, on any thread of the engine.
/// To be called before anything is loaded. Threads: the engine's.
void prepareEngine(QQmlEngine& engine);

/// Only lets an engine find these modules: for the engine of another program, whose network is its own.
/// Threads: the engine's.
void addModules(QQmlEngine& engine);

} // namespace OndelControls
