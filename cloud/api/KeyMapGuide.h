#pragma once

#include <QJsonObject>

namespace orvane::cloud {

// The tutorial of the key mapping as its endpoint answers it, from guide/ in this folder, which is built into
// the program: texts from guide.json, and its pictures as data URLs. Any thread. Throws std::runtime_error
// when a file is missing or damaged.
QJsonObject keyMapGuide();

} // namespace orvane::cloud
