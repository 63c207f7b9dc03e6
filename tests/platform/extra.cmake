# The packer's picture conversion is checked here, beside the encoders it uses.
target_link_libraries(test_${sub} PRIVATE quorix_packer)
