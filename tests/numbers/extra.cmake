target_link_libraries(test_${sub} PRIVATE gmp)
