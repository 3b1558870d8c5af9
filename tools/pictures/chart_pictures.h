#pragma once

#include "tools/pictures/picture.h"

namespace veyruna::pictures {

/// The charts of README, and those of the manual with the numbers that its pages explain.
Pictures chartPictures();

}  // namespace veyruna::pictures
