#pragma once

#include <QSerialPort>
#include <QStringList>
#include <functional>

#include "forms/modem.h"

namespace tarnwell::desktop {

class QtModem : public forms::Modem {
 public:
  // The devices of all ports, the first one first.
  using Ports = std::function<QStringList()>;
  static QStringList PortsOfMachine();

  explicit QtModem(Ports ports = PortsOfMachine);

  std::string PortName(int number) override;
  bool Open(int number) override;
  bool is_open() override { return port_.isOpen(); }
  void Close() override;
  void Send(std::string_view bytes) override;
  void ClearInput() override;
  std::string Receive() override;

 private:
  Ports ports_;
  QSerialPort port_;
};

}  // namespace tarnwell::desktop
