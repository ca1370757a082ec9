# Common setup of the project's shared libraries: hidden symbols, an export header, an installed package.

include(GenerateExportHeader)
include(CMakePackageConfigHelpers)

# unitmanager_add_library(<target>
#     NAMESPACE <ns>            alias and exported name: <ns>::<EXPORT_NAME>
#     EXPORT_NAME <name>
#     EXPORT_HEADER <file>      generated export header, installed with the others
#     INCLUDE_DESTINATION <dir> below the include directory
#     SOURCES <files> HEADERS <files>
#     PUBLIC <targets> PRIVATE <targets>)
# Exactly the headers listed under HEADERS are installed; they keep their folders.
function(unitmanager_add_library target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "NAMESPACE;EXPORT_NAME;EXPORT_HEADER;INCLUDE_DESTINATION"
                          "SOURCES;HEADERS;PUBLIC;PRIVATE")
    add_library(${target} SHARED ${ARG_SOURCES})
    add_library(${ARG_NAMESPACE}::${ARG_EXPORT_NAME} ALIAS ${target})
    generate_export_header(${target} BASE_NAME ${ARG_EXPORT_NAME}
        EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${ARG_EXPORT_HEADER})
    target_sources(${target} PUBLIC FILE_SET HEADERS
        BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_BINARY_DIR}
        FILES ${ARG_HEADERS} ${CMAKE_CURRENT_BINARY_DIR}/${ARG_EXPORT_HEADER})
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${ARG_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        UNITMANAGER_INSTALLED_HEADERS "${ARG_HEADERS}")

    install(TARGETS ${target} EXPORT ${ARG_NAMESPACE}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${ARG_INCLUDE_DESTINATION} COMPONENT dev)
endfunction()

# unitmanager_install_package(<package>): installs the CMake package of all libraries of that namespace,
# made from cmake/<package>Config.cmake.in and compatible within one major version.
function(unitmanager_install_package package)
    set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake INSTALL_DESTINATION ${destination})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${destination} COMPONENT dev)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake
                  ${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
        DESTINATION ${destination} COMPONENT dev)
endfunction()

# unitmanager_install_pkg_config(<target>): installs unitmanager.pc, which locates the installed tree relative to
# itself and lists the platform libraries that the library's interface needs.
function(unitmanager_install_pkg_config target)
    set(destination ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH UNITMANAGER_PC_PREFIX ${CMAKE_INSTALL_PREFIX}/${destination} ${CMAKE_INSTALL_PREFIX})
    string(REGEX REPLACE "/$" "" UNITMANAGER_PC_PREFIX ${UNITMANAGER_PC_PREFIX})
    get_target_property(platform ${target} INTERFACE_LINK_LIBRARIES)
    list(FILTER platform INCLUDE REGEX "^DevicePlatform::")
    foreach(library IN LISTS platform)
        string(REPLACE "DevicePlatform::" "" name ${library})
        if(UNITMANAGER_PLATFORM_PACKAGE)
            # Imported libraries are located where their package says.
            set(folders $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
            string(APPEND UNITMANAGER_PLATFORM_PC_CFLAGS " -I$<JOIN:${folders}, -I>")
            string(APPEND UNITMANAGER_PLATFORM_PC_LIBS " $<TARGET_LINKER_FILE:${library}>")
        else()
            string(APPEND UNITMANAGER_PLATFORM_PC_CFLAGS " -I\${includedir}/device-platform/${name}")
            string(APPEND UNITMANAGER_PLATFORM_PC_LIBS " -lDevicePlatform${name}")
        endif()
    endforeach()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/unitmanager.pc.in ${CMAKE_CURRENT_BINARY_DIR}/unitmanager.pc.in @ONLY)
    file(GENERATE OUTPUT unitmanager.pc INPUT ${CMAKE_CURRENT_BINARY_DIR}/unitmanager.pc.in)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/unitmanager.pc DESTINATION ${destination} COMPONENT dev)
endfunction()
