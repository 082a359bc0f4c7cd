# The data folders beside the programs of every build, as an installed module has them.
add_custom_target(orvik_data ALL
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${CMAKE_SOURCE_DIR}/data" "${CMAKE_BINARY_DIR}"
  COMMENT "Copying the data folders")
