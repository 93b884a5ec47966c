# Installs the built library into a fresh prefix, then configures, builds and
# runs the small host against that prefix only.
file(REMOVE_RECURSE ${DESTINO})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${CONSTRUCCION} --prefix ${DESTINO}/prefijo
  RESULT_VARIABLE r)
if(r)
  message(FATAL_ERROR "install failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${FUENTES}/tests/anfitrion -B ${DESTINO}/anfitrion
  -DCMAKE_PREFIX_PATH=${DESTINO}/prefijo RESULT_VARIABLE r)
if(r)
  message(FATAL_ERROR "the host does not configure against the installed package")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${DESTINO}/anfitrion RESULT_VARIABLE r)
if(r)
  message(FATAL_ERROR "the host does not build against the installed package")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${DESTINO}/anfitrion/anfitrion
  RESULT_VARIABLE r)
if(r)
  message(FATAL_ERROR "the host does not run: ${r}")
endif()
