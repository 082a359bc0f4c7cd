// The background pictures of the main window, drawn by us: a soft band under the toolbar, and the
// shade that it casts on the pages.
#pragma once

#include "platform/Surface.h"

namespace orvik {

// Under the toolbar: from light above to a water blue-grey below.
Picture Image1(Size size);

// Along the upper edge of a page: falls to the page's own colour.
Picture Image2(Size size);

// The whole background of the toolbar and of a page.
void PaintToolbar(Surface& surface, Size size);
void PaintPage(Surface& surface, Size size);

}  // namespace orvik
