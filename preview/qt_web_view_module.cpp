#include "preview/qt_web_view_module.h"

#include <QCoreApplication>
#include <QLibrary>

namespace orvane {

MakeWebView LoadWebViewModule()
{
    for (const char* folder : {"/", "/../lib/orvane/"}) {
        QLibrary module(QCoreApplication::applicationDirPath() + folder + webViewModule);
        if (const auto make = reinterpret_cast<MakeWebView>(module.resolve(makeWebViewName)))
            return make;
    }
    return nullptr;
}

} // namespace orvane
