# Debian's libsoci-dev ships no package file. Defines SOCI::core and SOCI::sqlite3.
find_path(SOCI_INCLUDE_DIR soci/soci.h)
find_library(SOCI_CORE_LIBRARY soci_core)
find_library(SOCI_SQLITE3_LIBRARY soci_sqlite3)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(SOCI
  REQUIRED_VARS SOCI_INCLUDE_DIR SOCI_CORE_LIBRARY SOCI_SQLITE3_LIBRARY)

if(SOCI_FOUND AND NOT TARGET SOCI::core)
  add_library(SOCI::core UNKNOWN IMPORTED)
  set_target_properties(SOCI::core PROPERTIES
    IMPORTED_LOCATION "${SOCI_CORE_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${SOCI_INCLUDE_DIR}"
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${SOCI_INCLUDE_DIR}")
  add_library(SOCI::sqlite3 UNKNOWN IMPORTED)
  set_target_properties(SOCI::sqlite3 PROPERTIES
    IMPORTED_LOCATION "${SOCI_SQLITE3_LIBRARY}"
    INTERFACE_LINK_LIBRARIES SOCI::core)
endif()
