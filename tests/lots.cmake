nomencla_prueba(prueba_lotes prueba_lotes.cpp prueba_estructura.h)
