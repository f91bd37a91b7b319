# Runs the fuzz target for a bounded time on a fresh copy of the seeds, in the build tree.
# -DFUZZER=<executable> -DSEEDS=<folder> -DWORK=<scratch folder> -DSECONDS=<time>
file(REMOVE_RECURSE ${WORK}/corpus)
file(MAKE_DIRECTORY ${WORK}/corpus ${WORK}/artifacts)
file(GLOB seeds ${SEEDS}/*)
file(COPY ${seeds} DESTINATION ${WORK}/corpus)
execute_process(
  COMMAND ${FUZZER} ${WORK}/corpus -max_total_time=${SECONDS} -rss_limit_mb=1024 -malloc_limit_mb=64
          -max_len=8192 -timeout=10 -print_final_stats=1 -artifact_prefix=${WORK}/artifacts/
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the fuzz target failed (${result}); the input that broke it is in ${WORK}/artifacts")
endif()
