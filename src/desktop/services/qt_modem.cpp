#include "desktop/services/qt_modem.h"

#include <QCollator>
#include <QSerialPortInfo>
#include <algorithm>
#include <utility>

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr qint64 kMostReceived = 4096;  // bytes

}  // namespace

// By their names, numbers counting as such: the machine lists them in any order.
QStringList QtModem::PortsOfMachine() {
  QStringList devices;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) {
    devices.append(port.systemLocation());
  }
  QCollator by_number{QLocale::c()};
  by_number.setNumericMode(true);
  std::sort(devices.begin(), devices.end(), by_number);
  return devices;
}

QtModem::QtModem(Ports ports) : ports_(std::move(ports)) { port_.setReadBufferSize(kMostReceived); }

std::string QtModem::PortName(int number) {
  const QStringList devices = ports_();
  if (number < 1 || number > devices.size()) return {};
  return ToCore(devices.at(number - 1));
}

bool QtModem::Open(int number) {
  Close();
  const std::string name = PortName(number);
  if (name.empty()) return false;
  port_.setPortName(FromCore(name));
  port_.setBaudRate(QSerialPort::Baud9600);
  port_.setDataBits(QSerialPort::Data8);
  port_.setParity(QSerialPort::NoParity);
  port_.setStopBits(QSerialPort::OneStop);
  port_.setFlowControl(QSerialPort::NoFlowControl);
  return port_.open(QIODevice::ReadWrite);
}

void QtModem::Close() {
  if (!port_.isOpen()) return;
  port_.flush();
  port_.close();
}

void QtModem::Send(std::string_view bytes) {
  if (!port_.isOpen()) return;
  port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
  port_.flush();
}

void QtModem::ClearInput() {
  if (!port_.isOpen()) return;
  port_.clear(QSerialPort::Input);
  port_.readAll();
}

std::string QtModem::Receive() {
  return port_.isOpen() ? port_.read(kMostReceived).toStdString() : std::string();
}

}  // namespace tarnwell::desktop
