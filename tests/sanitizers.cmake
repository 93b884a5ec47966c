# The order of destruction of the shared state, under AddressSanitizer and
# UndefinedBehaviorSanitizer. Only the state, the services and the public class
# are compiled with the sanitizers; the dialogs they name are linked as built
# for the rest of the suite, so the check costs a few files, not a second build.
if(NOMENCLA_SANITIZER_TEST)
  set(nomencla_saneado -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_executable(prueba_orden_destruccion
    saneado/orden_destruccion.cpp
    ${PROJECT_SOURCE_DIR}/core/Module1.cpp
    ${PROJECT_SOURCE_DIR}/core/clsServicios.cpp
    ${PROJECT_SOURCE_DIR}/core/clsGrillas.cpp
    ${PROJECT_SOURCE_DIR}/api/clsNomencla.cpp
    $<TARGET_OBJECTS:nomencla_grid>
    $<TARGET_OBJECTS:nomencla_toolkit>
    $<TARGET_OBJECTS:nomencla_catalogues>
    $<TARGET_OBJECTS:nomencla_company>
    $<TARGET_OBJECTS:nomencla_pickers>)
  target_include_directories(prueba_orden_destruccion PRIVATE
    ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/include ${PROJECT_SOURCE_DIR})
  target_compile_definitions(prueba_orden_destruccion PRIVATE nomencla_EXPORTS)
  target_compile_options(prueba_orden_destruccion PRIVATE ${nomencla_saneado})
  target_link_options(prueba_orden_destruccion PRIVATE ${nomencla_saneado})
  target_link_libraries(prueba_orden_destruccion PRIVATE Qt6::Widgets Qt6::Sql nomencla_warnings)
  add_test(NAME orden_destruccion_saneado COMMAND prueba_orden_destruccion)
  set_tests_properties(orden_destruccion_saneado PROPERTIES
    ENVIRONMENT "ASAN_OPTIONS=detect_leaks=1;UBSAN_OPTIONS=print_stacktrace=1"
    FAIL_REGULAR_EXPRESSION "Sanitizer|runtime error")
endif()
