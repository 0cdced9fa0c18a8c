/* Converts the file that it is given, by the C interface of s2k2ngt. */
#include <s2k2ngt/s2k2ngt.h>

#include <signal.h>
#include <stdio.h>

/* What the call-backs work on: a window in a host with windows. The library hands it to each of
 * them and keeps nothing itself. */
typedef struct conversion_view {
  int percent; /* as last shown */
} conversion_view;

/* What a Stop button would set. */
static volatile sig_atomic_t stop_wanted = 0;

static void on_interrupt(int signal_number) {
  (void)signal_number;
  stop_wanted = 1;
}

/* Comes for each kind of data that was changed or lost. The text is gone when we return: a host
 * that shows it later keeps a copy. */
static void on_message(void* context, const char* key, const char* text) {
  (void)context;
  printf("%s: %s\n", key, text);
}

/* Comes for every row of the file, so only what has changed is shown. */
static void on_progress(void* context, const char* phase, int position, int range) {
  conversion_view* const view = context;
  const int percent = position < range ? (int)(100LL * position / range) : 100;
  if (percent != view->percent) {
    view->percent = percent;
    fprintf(stderr, "%s %d %%\n", phase, percent);
  }
}

static int on_stop(void* context) {
  (void)context;
  return stop_wanted;
}

/* Comes once, when the result is S2K2NGT_FAILED. */
static void on_failure(void* context, const char* reason) {
  (void)context;
  fprintf(stderr, "%s\n", reason);
}

int main(int argc, char** argv) {
  conversion_view view = {-1};
  /* Call-backs that a host has no use for stay null; so do those of later versions. */
  s2k2ngt_host host = {0};
  char output[4096];

  if (argc != 2) {
    fprintf(stderr, "Usage: %s FILE.s2k\n", argv[0]);
    return 64;
  }
  host.size = sizeof host;
  host.context = &view;
  host.message = on_message;
  host.progress = on_progress;
  host.stop = on_stop;
  host.failure = on_failure;
  signal(SIGINT, on_interrupt);

  switch (s2k2ngt_convert(argv[1], &host, output, sizeof output)) {
    case S2K2NGT_CONVERTED:
      printf("%s\n", output);
      return 0;
    case S2K2NGT_STOPPED:
      fprintf(stderr, "stopped\n");
      return 1;
    default: /* on_failure has told why */
      return 2;
  }
}
