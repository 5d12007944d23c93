# Peer libraries used only as independent numerical oracles by the tests and
# as the comparison column of the benchmarks, when they are installed.
# Defines the interface target veltra_oracles with VELTRA_HAVE_PROJ and
# VELTRA_HAVE_GEOGRAPHICLIB set to 1 for each library found.
if(TARGET veltra_oracles)
  return()
endif()
add_library(veltra_oracles INTERFACE)
option(VELTRA_ORACLES "Compare against peer libraries when installed" ON)
if(NOT VELTRA_ORACLES)
  return()
endif()

find_package(PROJ CONFIG QUIET)
if(PROJ_FOUND)
  target_link_libraries(veltra_oracles INTERFACE PROJ::proj)
  target_compile_definitions(veltra_oracles INTERFACE VELTRA_HAVE_PROJ=1)
  message(STATUS "Oracle: PROJ ${PROJ_VERSION}")
endif()

find_library(GEOGRAPHICLIB_LIBRARY NAMES GeographicLib)
find_path(GEOGRAPHICLIB_INCLUDE_DIR GeographicLib/Geodesic.hpp)
if(GEOGRAPHICLIB_LIBRARY AND GEOGRAPHICLIB_INCLUDE_DIR)
  target_link_libraries(veltra_oracles INTERFACE ${GEOGRAPHICLIB_LIBRARY})
  target_include_directories(veltra_oracles INTERFACE ${GEOGRAPHICLIB_INCLUDE_DIR})
  target_compile_definitions(veltra_oracles INTERFACE VELTRA_HAVE_GEOGRAPHICLIB=1)
  message(STATUS "Oracle: GeographicLib")
endif()
