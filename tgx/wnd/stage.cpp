#include "tgx/wnd/stage.h"

#include "tgx/wnd/screenlist.h"

namespace tgx {

Stage::Stage() : screenList(std::make_unique<AScreenList>()) {}
Stage::~Stage() = default;

} // namespace tgx
