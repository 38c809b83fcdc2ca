#pragma once

#include <QString>

namespace ratanka {

// Full path of a data file of the program: beside the executable first, then in the folder that an
// installation puts data into. Where neither has it, the place beside the executable.
QString dataFile(const QString& name);

}  // namespace ratanka
