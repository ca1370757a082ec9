// Compiled, and not linked: what the compiler accepts is the check.

#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

#include <type_traits>
#include <utility>

static_assert(
    std::is_same_v<decltype(std::declval<UnitManagerStateMachineWrapper&>().postEvent()), POST_EVENT_RESULT>);
