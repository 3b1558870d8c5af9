#pragma once

#include "tools/pictures/picture.h"
#include "tools/pictures/shown_program.h"

namespace veyruna::pictures {

/// The pictures of the window that README and manual show.
Pictures windowPictures();

/// Every tab, the map enlarged, the sidebar and About, in one look and size (points), to be looked
/// at; their files stand in no folder.
Pictures everyView(Look look, QSize size);

}  // namespace veyruna::pictures
