#pragma once

#include <QUuid>
#include <functional>

namespace veyruna::model {

/// Where random ids come from; a test hands in its own.
using IdSource = std::function<QUuid()>;

}  // namespace veyruna::model
