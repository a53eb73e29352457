// Registration of the platform's control classes.
#include "controls/CommonControls.h"

namespace quorfx
{

void EnsureCommonControls()
{
    static const BOOL registered = [] {
        INITCOMMONCONTROLSEX classes = {sizeof classes,
                                        ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
        return ::InitCommonControlsEx(&classes);
    }();
    UNUSED_ALWAYS(registered);
}

} // namespace quorfx
