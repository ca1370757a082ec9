# unitmanager_add_tests(<program> CLASSES <names> [SOURCES <files>] [LIBRARIES <targets>]): adds a program that contains
# the Qt Test classes <name>.cpp, and a CTest test <name> for each of them.
# QT_HASH_SEED, locale and language of the caller's environment reach the tests unchanged.
function(unitmanager_add_tests program)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "CLASSES;SOURCES;LIBRARIES")
    list(TRANSFORM ARG_CLASSES APPEND .cpp OUTPUT_VARIABLE class_sources)
    add_executable(${program} ${class_sources} ${ARG_SOURCES})
    target_link_libraries(${program} PRIVATE UnitManagerTestMain ${ARG_LIBRARIES})
    target_precompile_headers(${program} REUSE_FROM UnitManagerTestSupport)
    target_compile_definitions(${program} PRIVATE
        UNITMANAGER_SOURCE_DIR="${PROJECT_SOURCE_DIR}" UNITMANAGER_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
    foreach(class IN LISTS ARG_CLASSES)
        add_test(NAME ${class} COMMAND ${program} ${class})
        set_tests_properties(${class} PROPERTIES TIMEOUT 300)
    endforeach()
endfunction()
