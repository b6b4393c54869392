# Copies the sample device files into the device folder without replacing files already there,
# so settings changed by running the editor survive a rebuild (delete the folder to start over).
file(GLOB_RECURSE files RELATIVE ${FROM} ${FROM}/*)
foreach(f IN LISTS files)
  if(NOT EXISTS ${TO}/${f})
    get_filename_component(dir ${TO}/${f} DIRECTORY)
    file(MAKE_DIRECTORY ${dir})
    file(COPY ${FROM}/${f} DESTINATION ${dir})
  endif()
endforeach()
