include(TXCompilerOptions)
find_package(benchmark REQUIRED)

# Builds all benchmarks and nothing else.
add_custom_target(TXBenchmarks)

# tx_add_benchmark(<unit> [LIBRARIES <library>...])
#
# Builds bench_<unit>.cpp of the calling folder into one executable that ./dev bench runs.
function(tx_add_benchmark unit)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES")
  set(target bench_${unit})
  add_executable(${target} ${target}.cpp)
  tx_set_compiler_options(${target})
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/benchmarks)
  target_link_libraries(${target} PRIVATE TXBenchmarkSupport ${arg_LIBRARIES})
  add_dependencies(TXBenchmarks ${target})
endfunction()
