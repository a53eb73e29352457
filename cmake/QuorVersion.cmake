# The version of project() as macros for resources and sources: they include "QuorVersion.h" and link QuorVersion.
configure_file(${CMAKE_CURRENT_LIST_DIR}/QuorVersion.h.in ${PROJECT_BINARY_DIR}/generated/QuorVersion.h)
add_library(QuorVersion INTERFACE)
target_include_directories(QuorVersion INTERFACE ${PROJECT_BINARY_DIR}/generated)
