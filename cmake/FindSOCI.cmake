# Debian's libsoci-dev ships no package file. Defines SOCI::core, SOCI::sqlite3 and SOCI::odbc.
find_path(SOCI_INCLUDE_DIR soci/soci.h)
find_library(SOCI_CORE_LIBRARY soci_core)
find_library(SOCI_SQLITE3_LIBRARY soci_sqlite3)
find_library(SOCI_ODBC_LIBRARY soci_odbc)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(SOCI
  REQUIRED_VARS SOCI_INCLUDE_DIR SOCI_CORE_LIBRARY SOCI_SQLITE3_LIBRARY SOCI_ODBC_LIBRARY)

if(SOCI_FOUND AND NOT TARGET SOCI::core)
  add_library(SOCI::core UNKNOWN IMPORTED)
  set_target_properties(SOCI::core PROPERTIES
    IMPORTED_LOCATION "${SOCI_CORE_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${SOCI_INCLUDE_DIR}"
    INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${SOCI_INCLUDE_DIR}")
  foreach(rodzaj sqlite3 odbc)
    string(TOUPPER ${rodzaj} zmienna)
    add_library(SOCI::${rodzaj} UNKNOWN IMPORTED)
    set_target_properties(SOCI::${rodzaj} PROPERTIES
      IMPORTED_LOCATION "${SOCI_${zmienna}_LIBRARY}"
      INTERFACE_LINK_LIBRARIES SOCI::core)
  endforeach()
endif()
