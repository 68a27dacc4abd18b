#pragma once

// What the program calls itself.

#include <QString>

namespace App {

/// The title of its messages and of the save dialog.
QString Title();

/// Sets name, version and organization, which also say where its settings lie, and the
/// font and the icons of everything that it shows. To be called once, before the window
/// is made.
void Identify();

} // namespace App
