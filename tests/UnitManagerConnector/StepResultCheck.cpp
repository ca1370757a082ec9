// The test is that this file compiles; it is not linked.

#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

#include <type_traits>
#include <utility>

static_assert(
    std::is_same_v<decltype(std::declval<UnitManagerStateMachineWrapper&>().postEvent()), POST_EVENT_RESULT>);
