# Sources are picked up by folder so that adding a command or a record means
# adding its files, not editing the build. Unit tests (*_test.cpp) sit beside
# the code they test and are collected separately.
function(zek_glob_sources out)
  set(found)
  foreach(dir IN LISTS ARGN)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${dir}/*.cpp)
    list(FILTER files EXCLUDE REGEX "_test\\.cpp$")
    list(APPEND found ${files})
  endforeach()
  # A folder that has no code yet still makes a (empty) target.
  if(NOT found)
    set(empty ${CMAKE_BINARY_DIR}/zek_empty.cpp)
    if(NOT EXISTS ${empty})
      file(WRITE ${empty} "// intentionally empty\n")
    endif()
    set(found ${empty})
  endif()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

function(zek_glob_tests out)
  set(found)
  foreach(dir IN LISTS ARGN)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${dir}/*_test.cpp)
    list(APPEND found ${files})
  endforeach()
  set(${out} ${found} PARENT_SCOPE)
endfunction()
