#pragma once

#include <filesystem>
#include <string>

/// A folder of its own for a test, removed with all that it holds when the test is over.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return m_Path; }
  /// The path of a file in the folder.
  std::string FileName(const std::string& name) const { return (m_Path / name).string(); }

 private:
  std::filesystem::path m_Path;
};

void WriteFile(const std::string& path, const std::string& bytes);

/// All bytes of a file that must be there.
std::string ReadFile(const std::string& path);
