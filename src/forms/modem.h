#pragma once

#include <string>
#include <string_view>

namespace tarnwell::forms {

// A modem on a serial port of the machine, at 9600 baud with 8 data bits, no parity and one stop
// bit. Nothing here waits: bytes go out and come in while events happen. What fails has no effect
// and is not told; a modem that isn't there doesn't answer.
class Modem {
 public:
  virtual ~Modem() = default;

  // What the machine calls its port of that number, counted from 1: "/dev/ttyS0". Empty where it
  // has fewer.
  virtual std::string PortName(int number) = 0;
  // Closes a port that is open. False where that one isn't there or can't be had.
  virtual bool Open(int number) = 0;
  virtual bool is_open() = 0;
  // What was sent still goes out, as far as the port takes it at once.
  virtual void Close() = 0;
  virtual void Send(std::string_view bytes) = 0;
  // Drops what has arrived.
  virtual void ClearInput() = 0;
  // What has arrived since the last call, 4096 bytes at most.
  virtual std::string Receive() = 0;
};

}  // namespace tarnwell::forms
