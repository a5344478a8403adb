# sv_add_library(<folder> DEPS <targets...>)
# Makes the library target sv_<folder> from every source in the calling folder.
# A folder with headers only becomes an INTERFACE library.
function(sv_add_library folder)
  cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  set(cpp ${sources})
  list(FILTER cpp INCLUDE REGEX "\\.cpp$")
  set(target sv_${folder})
  if(cpp)
    add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC ${ARG_DEPS})
  else()
    add_library(${target} INTERFACE ${sources})
    target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} INTERFACE ${ARG_DEPS})
  endif()
endfunction()

# sv_add_test_folder(<folder> DEPS <targets...>)
# One test executable per tests/ folder, registered with CTest.
function(sv_add_test_folder folder)
  cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  set(target sv_${folder}_tests)
  add_executable(${target} ${sources})
  target_link_libraries(${target} PRIVATE ${ARG_DEPS} sv_test_support GTest::gtest GTest::gmock GTest::gtest_main)
  # Tests find the source tree (data/, samples/) and the build tree (generated sample XML)
  # through these two definitions.
  target_compile_definitions(${target} PRIVATE SV_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                                               SV_BINARY_DIR="${PROJECT_BINARY_DIR}")
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
