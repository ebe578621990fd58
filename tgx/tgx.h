#pragma once

/// The whole public face of the toolkit.

#include "platform/display/msgbox.h"
#include "tgx/base/numtext.h"
#include "tgx/controls/button.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"
#include "tgx/frame/app.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/anim.h"
#include "tgx/wnd/bmpinfo.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/screenlist.h"
#include "tgx/wnd/tabstops.h"
#include "tgx/wnd/wnd.h"
