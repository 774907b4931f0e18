#pragma once

#include "preview/web_view.h"

namespace orvane {

/// Loads the shared library of the web view and gives its function that makes views. It is looked
/// for in the program's own folder, then in "../lib/orvane" from there. Null when it, or a library
/// that it needs, is missing.
MakeWebView LoadWebViewModule();

} // namespace orvane
