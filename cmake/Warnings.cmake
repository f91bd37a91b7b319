# Our own code builds without warnings; Qt's headers are system headers and stay quiet.
function(fh_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                           -Wold-style-cast -Wcast-align -Woverloaded-virtual)
endfunction()
