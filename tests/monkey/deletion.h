#ifndef MONKEY_DELETION_H
#define MONKEY_DELETION_H

#include <QtCore/QByteArray>

#include <algorithm>
#include <iterator>

namespace Monkey {

/**
 * Signals whose handler may delete the panel at once: those that buttons and the host's own calls
 * cause. The others come out of the middle of a combo box, a line edit or a check box that is not
 * done with itself, or of a show event; their handlers use deleteLater().
 */
inline bool mayDeleteAtOnce(const QByteArray& signal)
{
    static constexpr const char* atOnce[] = {
        "widgetPrintSignal", "printPreviewSignal",        "openPreferencesSignal",
        "openModuleSignal",  "supplyColorsChangedSignal", "testPrintError",
        "resizeSignal",      "previewPrintSignal",        "popupHideSignal",
    };
    return std::any_of(std::begin(atOnce), std::end(atOnce),
                       [&signal](const char* name) { return signal == name; });
}

} // namespace Monkey

#endif
