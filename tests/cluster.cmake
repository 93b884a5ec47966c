# The dialogs on a Galera cluster of three nodes, started once for its tests
# and stopped after them (scripts/privcluster).
set(NOMENCLA_CLUSTER_DIR ${CMAKE_BINARY_DIR}/privcluster)

add_test(NAME cluster_privado_arranca
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/privcluster start ${NOMENCLA_CLUSTER_DIR} 3)
set_tests_properties(cluster_privado_arranca PROPERTIES FIXTURES_SETUP galera TIMEOUT 300)
add_test(NAME cluster_privado_para
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/privcluster stop ${NOMENCLA_CLUSTER_DIR})
set_tests_properties(cluster_privado_para PROPERTIES FIXTURES_CLEANUP galera)

add_executable(prueba_cluster prueba_cluster.cpp)
target_link_libraries(prueba_cluster PRIVATE nomencla_prueba nomencla_warnings)
target_compile_definitions(prueba_cluster PRIVATE NOMENCLA_CLUSTER="${NOMENCLA_CLUSTER_DIR}")
add_test(NAME prueba_cluster COMMAND prueba_cluster)
set_tests_properties(prueba_cluster PROPERTIES
  ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
  FIXTURES_REQUIRED galera
  TIMEOUT 900)
