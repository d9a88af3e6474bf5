// A small plant section as documents: what a tank with its pump and valves needs of every family.
// Writes each document into a folder, given as argument or temporary, reads it back and compares.
#include <cstdlib>
#include <exception>
#include <iostream>

#include "examples/plant_application.h"
#include "examples/plant_files.h"
#include "examples/plant_hardware.h"
#include "examples/plant_program.h"
#include "examples/plant_pump.h"
#include "examples/plant_start_sequence.h"
#include "praxen/praxen.h"

namespace {

using praxen::ObjectFactory;

bool KeepPlant(plant::DocumentFolder& folder) {
  folder.Keep("pump_status.xml", plant::PumpStatus(), ObjectFactory::DeserializeDataType);
  folder.Keep("pump_type.xml", plant::PumpType(), ObjectFactory::DeserializeControlModuleType);
  folder.Keep("pump.xml", plant::Pump(), ObjectFactory::DeserializeControlModule);
  folder.Keep("level_control.xml", plant::LevelControl(), ObjectFactory::DeserializeProgram);
  folder.Keep("start_sequence.xml", plant::StartSequence(), ObjectFactory::DeserializeProgram);
  folder.Keep("interlocks.xml", plant::Interlocks(), ObjectFactory::DeserializeDiagram);
  folder.Keep("hardware.xml", plant::Hardware(), ObjectFactory::DeserializeHWUnit);
  folder.Keep("fast_task.xml", plant::FastTask(), ObjectFactory::DeserializeTask);
  folder.Keep("slow_task.xml", plant::SlowTask(), ObjectFactory::DeserializeTask);
  folder.Keep("execution_order.xml", plant::Order(), ObjectFactory::DeserializeExecutionOrder);
  folder.Keep("constants.xml", plant::Constants(), ObjectFactory::DeserializeProjectConstants);
  folder.Keep("access.xml", plant::Access(), ObjectFactory::DeserializeAccessVariables);
  folder.Keep("libraries.xml", plant::Libraries(), ObjectFactory::DeserializeConnectedLibraries);
  folder.Keep("variables.xml", plant::Variables(), ObjectFactory::DeserializeApplicationVariables);
  folder.Keep("properties.xml", plant::Properties(),
              ObjectFactory::DeserializeApplicationProperties);
  return folder.good();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc > 1) {
      plant::DocumentFolder folder(argv[1]);
      return KeepPlant(folder) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    const plant::TemporaryFolder temporary;
    plant::DocumentFolder folder(temporary.path());
    return KeepPlant(folder) ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const std::exception& error) {
    std::cerr << "plant: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
