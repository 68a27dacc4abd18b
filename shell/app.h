#pragma once

// What the program calls itself.

#include <QString>

namespace App {

/// The title of its messages and of the save dialog.
QString Title();

/// Sets name, version and organization, which also say where its settings lie, and the
/// font and the icons of everything that it shows. `program` is the name of the executable and
/// of its desktop entry. To be called once, before the window is made.
void Identify(const QString &program = QStringLiteral("orravane"));

} // namespace App
