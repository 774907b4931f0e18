#pragma once

#include "preview/web_view.h"

namespace orvane {

/// Loads the module that holds the web view, which lies beside the program where it was built and
/// in lib/orvane where it was installed. Null when it, or a library that it needs, is missing.
MakeWebView LoadWebViewModule();

} // namespace orvane
