#include "core/qt_text.h"
