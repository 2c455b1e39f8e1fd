# A room is one static library. Its headers are reached only as "room/header.h", through a link in the
# build tree that the library alone exports: a room that is not linked cannot be included.

add_library(zorvik_styl INTERFACE)
target_compile_features(zorvik_styl INTERFACE cxx_std_20)
target_compile_options(zorvik_styl INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wconversion -Wno-sign-conversion -Wold-style-cast>
  # g++ 12 sees overruns in the optimised std::string operator+ where there are none.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict -Wno-array-bounds
    -Wno-stringop-overflow>
  -fstack-protector-strong)
target_compile_definitions(zorvik_styl INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
  $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

# zorvik_pokoj(NAME SOURCES files... LINK targets... PRIVATE_LINK targets...)
function(zorvik_pokoj nazwa)
  cmake_parse_arguments(P "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  set(widok "${PROJECT_BINARY_DIR}/naglowki/${nazwa}")
  file(MAKE_DIRECTORY "${widok}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${widok}/${nazwa}" SYMBOLIC)
  if(NOT P_SOURCES)
    add_library(zorvik_${nazwa} INTERFACE)
    target_include_directories(zorvik_${nazwa} INTERFACE "${widok}")
    target_link_libraries(zorvik_${nazwa} INTERFACE ${P_LINK})
    return()
  endif()
  add_library(zorvik_${nazwa} STATIC ${P_SOURCES})
  target_include_directories(zorvik_${nazwa} PUBLIC "${widok}")
  target_link_libraries(zorvik_${nazwa} PUBLIC ${P_LINK} PRIVATE zorvik_styl ${P_PRIVATE_LINK})
  target_precompile_headers(zorvik_${nazwa} PRIVATE
    <QByteArray> <QString> <array> <functional> <memory> <optional> <string> <unordered_map> <vector>)
endfunction()

# zorvik_test(NAME [SERWER] SOURCES files... LINK targets...): one GoogleTest program for one room. With SERWER
# its tests run a second time, "serwer.…", on a database of the test server instead of on files.
function(zorvik_test nazwa)
  cmake_parse_arguments(P "SERWER" "" "SOURCES;LINK" ${ARGN})
  set(widok "${PROJECT_BINARY_DIR}/naglowki/tests")
  file(MAKE_DIRECTORY "${widok}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/tests" "${widok}/tests" SYMBOLIC)
  add_executable(test_${nazwa} ${P_SOURCES})
  target_include_directories(test_${nazwa} PRIVATE "${widok}")
  target_link_libraries(test_${nazwa} PRIVATE ${P_LINK} zorvik_styl GTest::gtest GTest::gmock GTest::gtest_main)
  target_precompile_headers(test_${nazwa} PRIVATE
    <gmock/gmock.h> "${PROJECT_SOURCE_DIR}/tests/wspolne/drukowanie.h" <QString> <QByteArray> <string> <vector>)
  gtest_discover_tests(test_${nazwa} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
  if(P_SERWER)
    gtest_discover_tests(test_${nazwa} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 TEST_PREFIX serwer.
      TEST_LIST test_${nazwa}_SERWER
      PROPERTIES TIMEOUT 300 LABELS serwer ENVIRONMENT ZORVIK_TEST_BAZA=odbc)
  endif()
endfunction()
