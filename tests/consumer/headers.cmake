# Exactly the public headers are installed, and <GXUIPickers/…> reaches no other, neither installed
# nor in the build folder:
# cmake -D build=… -D work=… -D compiler=… -P headers.cmake
file(REMOVE_RECURSE "${work}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(STRINGS "${build}/tests/public-headers.txt" public)
file(STRINGS "${build}/tests/internal-headers.txt" internal)
list(LENGTH public count)
list(LENGTH internal internal_count)
if(count LESS 50 OR internal_count LESS 1)
  message(FATAL_ERROR "The lists are not whole: ${count} public headers, ${internal_count} internal ones.")
endif()

foreach(place "${work}/prefix/include" "${build}/include")
  file(GLOB_RECURSE found RELATIVE "${place}" "${place}/*")
  list(TRANSFORM public PREPEND "GXUIPickers/" OUTPUT_VARIABLE expected)
  list(SORT found)
  list(SORT expected)
  if(NOT found STREQUAL expected)
    set(extra ${found})
    list(REMOVE_ITEM extra ${expected})
    set(missing ${expected})
    list(REMOVE_ITEM missing ${found})
    message(FATAL_ERROR "In ${place} too many: ${extra}; missing: ${missing}")
  endif()

  # The messages below are looked for in English.
  set(ENV{LC_ALL} C)
  # An older standard is named as the reason, before the errors that follow from it.
  file(WRITE "${work}/standard.cpp" "#include <GXUIPickers/GXUIPickers.h>\n")
  execute_process(COMMAND "${compiler}" -std=c++17 -Wfatal-errors -fsyntax-only "-I${place}" "${work}/standard.cpp" RESULT_VARIABLE result
    OUTPUT_VARIABLE output ERROR_VARIABLE output)
  string(REGEX MATCH "error: [^\n]*" first_error "${output}")
  if(result EQUAL 0 OR NOT first_error MATCHES "GXUIPickers needs C\\+\\+20")
    message(FATAL_ERROR "C++17 is not refused by the first message: ${first_error}")
  endif()
  # The line that outside code writes works for a public header, and fails for internal ones since
  # they are not found.
  list(GET public 0 first)
  foreach(header ${first} ${internal})
    file(WRITE "${work}/line.cpp" "#include <GXUIPickers/${header}>\n")
    execute_process(COMMAND "${compiler}" -std=c++20 -fsyntax-only "-I${place}" "${work}/line.cpp"
      RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(header STREQUAL first AND NOT result EQUAL 0)
      message(FATAL_ERROR "<GXUIPickers/${header}> is public and does not compile:\n${output}")
    elseif(NOT header STREQUAL first AND NOT output MATCHES "GXUIPickers/${header}.*(No such file|not found)")
      message(FATAL_ERROR "<GXUIPickers/${header}> is internal, but ${compiler} says:\n${output}")
    endif()
  endforeach()
endforeach()
