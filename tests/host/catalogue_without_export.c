/* A library under the catalogue's name that does not export what a catalogue must. */
__attribute__((visibility("default"))) const char* LoadString(const char* key) { return key; }
