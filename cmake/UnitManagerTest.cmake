# unitmanager_add_test(<name> SOURCES <files> [LIBRARIES <targets>]): adds a Qt Test program as one CTest test.
# QT_HASH_SEED, locale and language of the caller's environment reach the test unchanged.
function(unitmanager_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Test UnitManagerTestSupport ${ARG_LIBRARIES})
    target_compile_definitions(${name} PRIVATE
        UNITMANAGER_SOURCE_DIR="${PROJECT_SOURCE_DIR}" UNITMANAGER_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
