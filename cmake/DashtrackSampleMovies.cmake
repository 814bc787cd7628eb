# dashtrack_sample_movie(<output> <route.csv> <generator options>...)
# Makes a movie with dashtrack-samplegen at build time and appends the step's stamp file to the
# caller's variable DASHTRACK_SAMPLE_STAMPS. The movie's modification time is set to its recording
# time, long past, so make would think it always out of date: the stamp stands in for it.
function(dashtrack_sample_movie output route)
  get_filename_component(name ${output} NAME)
  set(stamp_dir ${CMAKE_CURRENT_BINARY_DIR}/stamps)
  file(MAKE_DIRECTORY ${stamp_dir})
  set(stamp ${stamp_dir}/${name}.stamp)
  add_custom_command(
    OUTPUT ${stamp}
    BYPRODUCTS ${output}
    COMMAND dashtrack-samplegen ${ARGN} ${route} ${output}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS dashtrack-samplegen ${route}
    COMMENT "Making sample movie ${name}"
    VERBATIM)
  set(DASHTRACK_SAMPLE_STAMPS ${DASHTRACK_SAMPLE_STAMPS} ${stamp} PARENT_SCOPE)
endfunction()
