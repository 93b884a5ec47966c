# Named lists, banks and units of measure.
nomencla_prueba(prueba_listas_nombradas prueba_listas_nombradas.cpp)
nomencla_prueba(prueba_bancos prueba_bancos.cpp)
nomencla_prueba(prueba_medidas prueba_medidas.cpp)
