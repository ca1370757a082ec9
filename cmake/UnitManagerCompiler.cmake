# Compile and link options of every target of the project.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# ccache is used if it is installed. It caches sources with precompiled headers only with these settings.
find_program(UNITMANAGER_CCACHE ccache)
mark_as_advanced(UNITMANAGER_CCACHE)
if(UNITMANAGER_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${UNITMANAGER_CCACHE})
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# Relative paths: installed programs and libraries find each other wherever the tree is located.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}" "$ORIGIN")

# Within a library, all functions may be inlined and are called directly, even exported ones.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -fno-semantic-interposition)
add_link_options(-Wl,-Bsymbolic-functions)
# Same results on every processor: only an explicit std::fma fuses multiplication and addition.
add_compile_options(-ffp-contract=off)
# Both make conversions faster on x86-64; on ARM they only add code.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
    add_compile_options(-fno-plt -falign-functions=64)
endif()
add_compile_definitions(
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00
)
# Undefined symbols fail at link time rather than on the device. Sanitizer symbols are resolved only when the
# program is loaded.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    add_link_options(-Wl,--no-undefined)
endif()
