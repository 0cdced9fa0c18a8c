/*
 * C interface of s2k2ngt, for hosts of any language and compiler.
 *
 *     static void on_message(void *context, const char *key, const char *text) { ... }
 *
 *     s2k2ngt_host host = {0};
 *     host.size = sizeof host;
 *     host.message = on_message;
 *     char output[4096];
 *     int result = s2k2ngt_convert("bridge.s2k", &host, output, sizeof output);
 *
 * Nothing is thrown across this interface, and no window is opened but by s2k2ngt_convert_chosen.
 *
 * All functions may be called from several threads at once, but s2k2ngt_convert_chosen only from
 * one at a time. No two conversions at once may write the same output. A call-back that hosts of
 * several threads share is called on all of them, and so is a message catalogue that a host brings.
 * The library must not be unloaded before the last call has returned.
 */
#ifndef S2K2NGT_H
#define S2K2NGT_H

#include <s2k2ngt/export.h>

/* NOLINTBEGIN(modernize-deprecated-headers, modernize-use-using): this is C */
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Results of a conversion. */
#define S2K2NGT_CONVERTED 0
#define S2K2NGT_STOPPED 1
#define S2K2NGT_FAILED (-1)

/* What became of a row of the source file. */
#define S2K2NGT_ROW_CONVERTED 0
#define S2K2NGT_ROW_CHANGED 1       /* it went over, but not as it stood */
#define S2K2NGT_ROW_DROPPED 2       /* left out by a rule of the conversion */
#define S2K2NGT_ROW_REFUSED 3       /* the host has no like for it */
#define S2K2NGT_ROW_NOT_LOOKED_AT 4 /* nothing reads its table, or the run ended before */

/* The rows below one title of the source file. Later versions add to its end. */
typedef struct s2k2ngt_table {
  const char* title; /* as it stands */
  uint64_t line;     /* of the title, from 1 */
  int id;            /* by which the conversion knows the table; 0 for an unknown title */
  /* The key of the message that the table calls for, or "". */
  const char* message;
  uint64_t rows;
  /* The rows by S2K2NGT_ROW_...; their sum is `rows`. */
  uint64_t by_fate[5];
} s2k2ngt_table;

/* Rows of a table that did not go over as they stood, and why: a single row, or all rows that have
 * the reason of their whole table. Later versions add to its end. */
typedef struct s2k2ngt_loss {
  uint64_t rows;     /* 1 for a single row */
  uint32_t position; /* of the row below its title, from 1; 0 for those of a whole table */
  uint64_t line;     /* of the row; of the title for those of a whole table */
  const char* label; /* the row's first key with its value, as "Frame=12", or "" */
  int fate;          /* S2K2NGT_ROW_..., never S2K2NGT_ROW_CONVERTED */
  int is_loss;       /* 0 where no part of the model goes missing or is altered */
  const char* code;  /* of the reason; it stays the same in later versions */
  const char* text;  /* what became of the row: a sentence */
  const char* advice;
} s2k2ngt_loss;

/* The host's call-backs, each of which may be null. They are called on the thread that called
 * s2k2ngt_convert. Texts are valid during the call alone. */
typedef struct s2k2ngt_host {
  /* sizeof(s2k2ngt_host), so that later versions can add to its end. */
  size_t size;
  /* Handed to every call-back as it is. */
  void* context;
  /* A text for the user. `key` is its key in the message catalogue, or "". */
  void (*message)(void* context, const char* key, const char* text);
  /* What is being done, and how far it has come: `position` of `range`, which it may exceed. */
  void (*progress)(void* context, const char* phase, int position, int range);
  /* Other than 0 stops the run at this point. */
  int (*stop)(void* context);
  /* Called once, with the reason, when the result is -1: file, line, table and what is wrong. */
  void (*failure)(void* context, const char* reason);
  /* The account of the file's rows, told when the run has ended, whatever its result: each table in
   * the order of the file, and behind it the reasons of its rows. It is kept if one of these two is
   * there; the output and the messages are the same with it and without. */
  void (*table)(void* context, const s2k2ngt_table* table);
  void (*loss)(void* context, const s2k2ngt_loss* loss);
} s2k2ngt_host;

/* Converts the file at `path` and writes the output beside it: all of the path up to its last dot,
 * then ".ngt". A file of that name is replaced, also when it is the input itself.
 *
 * With result 0 the output's path, ended by a NUL, stands in `output`, which holds `output_size`
 * bytes; with any other result `output` is left as it was. `output` may be null if output_size is
 * 0: then the path is not told. A buffer that is too small fails the call before anything is done.
 * `host` may be null. */
S2K2NGT_API int s2k2ngt_convert(const char* path, const s2k2ngt_host* host, char* output,
                                size_t output_size);

/* A dry run: converts the file and calls back as s2k2ngt_convert does, but writes and replaces
 * nothing. */
S2K2NGT_API int s2k2ngt_check(const char* path, const s2k2ngt_host* host);

/* s2k2ngt_convert for a file that the user chooses. Messages and progress are shown to the user, on
 * Windows in windows and elsewhere on a terminal; of the host's call-backs only `failure`, `table`
 * and `loss` are called. Result 1 also stands for a user who chose no file. entry_points.h has the
 * same for C++ hosts. */
S2K2NGT_API int s2k2ngt_convert_chosen(const s2k2ngt_host* host, char* output, size_t output_size);

/* The library's version, such as "0.1.0". */
S2K2NGT_API const char* s2k2ngt_version(void);

/* The number of message keys, a key by its position from 0 (null beyond the last), and the text
 * that the loaded catalogue has for a key. */
S2K2NGT_API size_t s2k2ngt_message_count(void);
S2K2NGT_API const char* s2k2ngt_message_key(size_t position);
S2K2NGT_API const char* s2k2ngt_message_text(const char* key);

/* NOLINTEND(modernize-deprecated-headers, modernize-use-using) */

#ifdef __cplusplus
}
#endif

#endif
