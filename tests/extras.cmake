# What the library adds to the dialogs: copy, export, import and the RUC hint.
add_executable(prueba_ruc prueba_ruc.cpp)
target_link_libraries(prueba_ruc PRIVATE nomencla_all Qt6::Test nomencla_warnings)
add_test(NAME prueba_ruc COMMAND prueba_ruc)
nomencla_prueba(prueba_exportar_importar prueba_exportar_importar.cpp prueba_estructura.h)
