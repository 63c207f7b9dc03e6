find_package(Qt6 REQUIRED COMPONENTS Test)
target_link_libraries(test_${sub} PRIVATE Qt6::Test)
