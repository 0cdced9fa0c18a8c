#include "support/writer_run.h"

#include "support/temporary_folder.h"

std::string WriterRun::Write(s2k2ngt::WriterFunction writer) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("section.ngt");
  s2k2ngt::OutputFile file(path);
  s2k2ngt::LineWriter out(file);
  writer(m_Conversion, out);
  out.Flush();
  file.Close();
  return ReadFile(path);
}
