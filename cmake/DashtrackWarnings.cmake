# Our own code builds with every warning as an error; third-party headers come in as system includes.
function(dashtrack_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()
