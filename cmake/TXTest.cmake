include(TXCompilerOptions)
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

# Qt would tell each test its own folders by definitions, and targets whose definitions differ
# cannot share a precompiled header. Nothing of ours uses them (QFINDTESTDATA does).
set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
# So would those of modules that only some tests link.
set_target_properties(Qt6::Network Qt6::Sql PROPERTIES INTERFACE_COMPILE_DEFINITIONS "")
if(TARGET Qt6::DBus)
  set_target_properties(Qt6::DBus PROPERTIES INTERFACE_COMPILE_DEFINITIONS "")
endif()

# tx_add_test(<unit> [LIBRARIES <library>...] [LOCK <name>])
#
# Builds tst_<unit>.cpp of the calling folder into one executable and registers it with ctest under
# <folder>/<unit>. The test sets up its own surroundings (see TestBase.h), so that ctest, the
# debugger and a start by hand see the same. Tests with the same lock, such as those that need the
# same port of the machine, run one after the other.
function(tx_add_test unit)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "LOCK" "LIBRARIES")
  set(target tst_${unit})
  add_executable(${target} ${target}.cpp)
  tx_set_compiler_options(${target})
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_precompile_headers(${target} REUSE_FROM TXTestSupport)
  target_link_libraries(${target} PRIVATE TXTestSupport ${arg_LIBRARIES})

  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  add_test(NAME ${folder}/${unit} COMMAND ${target} -nocrashhandler -maxwarnings 0)
  set_tests_properties(${folder}/${unit} PROPERTIES TIMEOUT 300)
  if(arg_LOCK)
    set_tests_properties(${folder}/${unit} PROPERTIES RESOURCE_LOCK ${arg_LOCK})
  endif()
endfunction()
