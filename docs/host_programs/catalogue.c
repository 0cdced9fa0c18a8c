/* A message catalogue in German, of which two texts stand here. */
#include <stddef.h>
#include <string.h>

#if defined(_WIN32)
#define CATALOGUE_API __declspec(dllexport)
#else
#define CATALOGUE_API __attribute__((visibility("default")))
#endif

static const struct message {
  const char* key;
  const char* text;
} messages[] = {
    /* The library puts the label of the frame in the place of %s. */
    {"IDS_S2KV8_OFFSET_REPLACE_GLOBAL",
     "Die Abstände des Einfügepunkts ersetzen die starren Enden von Stab %s."},
    {"IDS_S2KV8_FRAM_LclAx_Not_Convert",
     "Die lokalen Achsen der Stäbe werden zu einem Winkel je Stab. Bitte die Lage von Stützen "
     "prüfen."},
};

/* The text of a message key. The library asks on the threads of all runs, and keeps no copy: a text
 * must stay as long as the catalogue is loaded. */
CATALOGUE_API const char* LoadStr(const char* key) {
  size_t index = 0;
  for (index = 0; index < sizeof messages / sizeof messages[0]; ++index) {
    if (strcmp(messages[index].key, key) == 0) {
      return messages[index].text;
    }
  }
  return "Zu dieser Meldung gibt es keinen Text.";
}
