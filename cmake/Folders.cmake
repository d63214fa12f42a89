# The folders of the core, from the lowest layer up. A folder may include itself and the folders before it in this list, but
# none after it; tests/architecture/CheckLayers.cmake fails otherwise.
set(TW_CORE_FOLDERS platform commands values calc record water store exchange tree document catalogue doctor reports help
  tools shell)

# tw_core_folder(NAME): builds the logic of src/NAME, without its ui/ and qt/ folders, as the object library tw_NAME. Does
# nothing if the folder has no sources of its own.
function(tw_core_folder name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_library(tw_${name} OBJECT ${sources})
  target_include_directories(tw_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(tw_${name} PUBLIC tw_flags ${TW_LIBRARIES_OF_${name}})
endfunction()

# tw_objects_up_to(VAR NAME): sets VAR to the object libraries of all core folders from the bottom up to NAME.
function(tw_objects_up_to var name)
  set(found)
  foreach(folder IN LISTS TW_CORE_FOLDERS)
    if(TARGET tw_${folder})
      list(APPEND found tw_${folder})
    endif()
    if(folder STREQUAL name)
      break()
    endif()
  endforeach()
  set(${var} ${found} PARENT_SCOPE)
endfunction()
