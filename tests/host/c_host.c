/* A host written in C: converts the file that it is given and prints what it is told. */
#include <s2k2ngt/s2k2ngt.h>

#include <stdio.h>
#include <string.h>

static void on_message(void* context, const char* key, const char* text) {
  ++*(int*)context;
  printf("%s %s\n", key, strlen(text) > 0 ? "has a text" : "has no text");
}

int main(int argc, char** argv) {
  char output[1024] = "";
  int messages = 0;
  s2k2ngt_host host = {0};
  int result = 0;
  if (argc != 2) {
    return 64;
  }
  host.size = sizeof host;
  host.context = &messages;
  host.message = on_message;
  result = s2k2ngt_convert(argv[1], &host, output, sizeof output);
  printf("%d %d %s\n", result, messages, output);
  return 0;
}
