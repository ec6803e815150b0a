#include "base/CerrojoFichero.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace novex {

CerrojoFichero::CerrojoFichero(const std::filesystem::path& ruta)
    : descriptor_(::open(ruta.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0666)) {
  if (descriptor_ < 0) return;
  while (::flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) {
  }
}

CerrojoFichero::~CerrojoFichero() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace novex
