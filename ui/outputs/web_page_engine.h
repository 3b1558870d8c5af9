#pragma once

#include "ui/outputs/page_engine.h"

namespace veyruna::ui {

/// The web engine as what draws documents. All its views share one profile, which leaves nothing on
/// disk. To be used after exports::prepareWebEngine() and with an application object.
PageEngine webPageEngine();

}  // namespace veyruna::ui
