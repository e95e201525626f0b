# Sources that Qt's code generators write are not ours to lint: the nearest .clang-tidy counts, and
# this one asks for next to nothing (asking for nothing is an error). Written only when it differs:
# after a change of the checks ./dev lint begins anew.
if(CMAKE_CXX_CLANG_TIDY)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/.clang-tidy
    CONTENT "Checks: '-*,misc-new-delete-overloads'\n")
endif()

# tx_set_compiler_options(<target>)
#
# What every target of ours is compiled with: C++20, hidden symbols, Qt's code generators, our
# warnings, and the sanitizers of the preset. No folder of the machine that compiles gets into what
# is compiled: a debug build of Qt keeps __FILE__ beside the name of each signal and slot.
function(tx_set_compiler_options target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 20
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    AUTOMOC ON
    AUTOUIC ON
    AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/src/forms)

  target_compile_definitions(${target} PRIVATE
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_NO_FOREACH)

  target_compile_options(${target} PRIVATE
    $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wno-sign-conversion>
    $<$<CXX_COMPILER_ID:MSVC>:/W4>)
  foreach(folder IN ITEMS ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
    target_compile_options(${target} PRIVATE
      $<$<CXX_COMPILER_ID:GNU,Clang>:-fmacro-prefix-map=${folder}/=>)
  endforeach()
  if(TXGUICOMMON_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE
      $<$<CXX_COMPILER_ID:GNU,Clang>:-Werror>
      $<$<CXX_COMPILER_ID:MSVC>:/WX>)
  endif()

  if(TXGUICOMMON_SANITIZERS)
    target_compile_options(${target} PRIVATE
      -fsanitize=${TXGUICOMMON_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${TXGUICOMMON_SANITIZERS})
  endif()
endfunction()
