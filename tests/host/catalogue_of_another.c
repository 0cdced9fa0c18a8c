/* A catalogue that another has written, careless of what its texts do to a printf, and with no text
 * at all for some keys. */
#include <string.h>

__attribute__((visibility("default"))) const char* LoadStr(const char* key) {
  if (strcmp(key, "IDS_S2KV8_OFFSET_REPLACE_GLOBAL") == 0) {
    return "100%n of frame %s, not %s, %d";
  }
  if (strcmp(key, "IDS_S2KV8_FRAM_LclAx_Not_Convert") == 0) {
    return 0;
  }
  return "%s%n%x";
}
