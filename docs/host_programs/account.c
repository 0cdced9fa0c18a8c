/* Tells what a conversion of the file that it is given would lose, and writes nothing. */
#include <s2k2ngt/s2k2ngt.h>

#include <inttypes.h>
#include <stdio.h>

/* Comes once for each table of the file, before the losses of its rows. */
static void on_table(void* context, const s2k2ngt_table* table) {
  (void)context;
  printf("%s: %" PRIu64 " of %" PRIu64 " rows are converted as they stand\n", table->title,
         table->by_fate[S2K2NGT_ROW_CONVERTED], table->rows);
}

/* Comes for each row that does not go over as it stands, and once for all rows that share the
 * reason of their table. */
static void on_loss(void* context, const s2k2ngt_loss* loss) {
  int* losses = context;
  *losses += loss->is_loss;
  if (loss->position > 0) {
    printf("  line %" PRIu64 ", %s: %s\n", loss->line, loss->label, loss->text);
  } else {
    printf("  %" PRIu64 " rows: %s\n", loss->rows, loss->text);
  }
}

static void on_failure(void* context, const char* reason) {
  (void)context;
  fprintf(stderr, "%s\n", reason);
}

int main(int argc, char** argv) {
  s2k2ngt_host host = {0};
  int losses = 0;
  if (argc != 2) {
    fprintf(stderr, "Usage: %s FILE.s2k\n", argv[0]);
    return 64;
  }
  host.size = sizeof host;
  host.context = &losses;
  host.table = on_table;
  host.loss = on_loss;
  host.failure = on_failure;
  if (s2k2ngt_check(argv[1], &host) != S2K2NGT_CONVERTED) {
    return 2;
  }
  return losses > 0 ? 3 : 0;
}
