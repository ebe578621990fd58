# tgx_embed_scripts(target ID FILE [ID FILE ...])
#
# Embeds scripts in an executable as resources of type "TGXScript", so that the program needs no script files.
# A file with the same name in the script directory still takes precedence. ID is the resource id, 0 to 65535;
# 141 is the main script. FILE is a script in text form (.tgs), which the tool compiles together with its
# includes, or a compiled script (.tgx), which is embedded unchanged. A relative name is relative to the
# folder of the calling CMakeLists.txt.
#
#   add_executable(game main.cpp)
#   target_link_libraries(game PRIVATE tgx::tgx)
#   tgx_embed_scripts(game 141 scripts/script.tgs 142 scripts/common.tgs)

function(tgx_embed_scripts target)
  if(NOT TARGET ${target})
    message(FATAL_ERROR "tgx_embed_scripts: there is no target \"${target}\"; add_executable comes first")
  endif()
  list(LENGTH ARGN left)
  math(EXPR odd "${left} % 2")
  if(left EQUAL 0 OR odd)
    message(FATAL_ERROR "tgx_embed_scripts(${target} ...): expected pairs of ID and FILE, found: ${ARGN}")
  endif()

  # Computed here, because a variable set outside the function would not be visible to a caller in a parent
  # directory.
  set(bytes_to_cpp ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/bytes_to_cpp.cmake)
  set(out_dir ${CMAKE_CURRENT_BINARY_DIR}/tgx_scripts/${target})
  while(ARGN)
    list(POP_FRONT ARGN id file)
    if(NOT id MATCHES "^[0-9]+$" OR id GREATER 65535)
      message(FATAL_ERROR "tgx_embed_scripts(${target} ...): expected an ID from 0 to 65535, found \"${id}\"")
    endif()
    get_filename_component(source ${file} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_SOURCE_DIR})
    get_filename_component(name ${file} NAME_WE)
    get_filename_component(kind ${file} LAST_EXT)
    set(code ${out_dir}/script_${id}.cpp)
    file(MAKE_DIRECTORY ${out_dir})

    if(kind STREQUAL ".tgs")
      set(bytes ${out_dir}/${id}_${name}.tgx)
      add_custom_command(OUTPUT ${bytes}
        COMMAND tgx::tool build ${source} -o ${bytes} --depfile ${bytes}.d
        DEPENDS ${source} tgx::tool
        DEPFILE ${bytes}.d # the files that the script includes
        COMMENT "Compiling script ${file}" VERBATIM)
    elseif(kind STREQUAL ".tgx")
      set(bytes ${source})
    else()
      message(FATAL_ERROR "tgx_embed_scripts(${target} ...): \"${file}\" is neither a .tgs nor a .tgx file")
    endif()
    add_custom_command(OUTPUT ${code}
      COMMAND ${CMAKE_COMMAND} -D INPUT=${bytes} -D OUTPUT=${code} -D ID=${id} -P ${bytes_to_cpp}
      DEPENDS ${bytes} ${bytes_to_cpp}
      COMMENT "Embedding script ${file} as ${id}" VERBATIM)
    target_sources(${target} PRIVATE ${code})
  endwhile()
endfunction()
