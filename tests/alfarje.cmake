add_executable(prueba_alfarje prueba_alfarje.cpp)
target_link_libraries(prueba_alfarje PRIVATE nomencla_grid Qt6::Test Qt6::Sql nomencla_warnings)
add_test(NAME alfarje COMMAND prueba_alfarje)
set_tests_properties(alfarje PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
