nomencla_prueba(prueba_zonas prueba_zonas.cpp)
