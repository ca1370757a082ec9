// The test is that this file compiles; it is not linked. It contains the library's own source, compiled with
// the state machine in otherPlatform/.

#include "UnitManagerConnector/UnitManagerStateMachineWrapper.cpp"

#include <type_traits>
#include <utility>

static_assert(
    std::is_same_v<decltype(std::declval<UnitManagerStateMachineWrapper&>().postEvent()), POST_EVENT_RESULT>);
