target_link_libraries(test_${sub} PRIVATE quorix_app quorix_packer)
