# What every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Installed programs and libraries find each other wherever the tree is put.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}" "$ORIGIN")

# The functions of a library are its own: within it they are inlined and called directly, exported or not.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -fno-semantic-interposition)
add_link_options(-Wl,-Bsymbolic-functions)
# A product is rounded before it is added unless the code says std::fma, on every processor.
add_compile_options(-ffp-contract=off)
# Both make conversions faster on x86-64; on ARM they only add code.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
    add_compile_options(-fno-plt -falign-functions=64)
endif()
add_compile_definitions(
    QT_NO_CAST_TO_ASCII
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00
)
# A symbol that no library provides is an error of the link, not of the device's loader. The sanitizers
# resolve their own symbols only when the program is loaded.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    add_link_options(-Wl,--no-undefined)
endif()
