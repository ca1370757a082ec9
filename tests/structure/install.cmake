# cmake -D build_dir=... -D prefix=... -P install.cmake: installs the build into an empty folder.
file(REMOVE_RECURSE ${prefix})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${build_dir} --prefix ${prefix} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
