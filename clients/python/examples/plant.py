"""The small plant section of examples/plant.cpp, built by a script: the same documents.

Writes each document into the folder given as argument, or into a temporary one, reads it back and
compares.
"""

import pathlib
import sys
import tempfile

from praxenhelper import Dispatch, constants, load, save

factory = Dispatch("PraxenHelper.ObjectFactory")


def pump_status():
    status = factory.NewDataType("PumpStatus", "What a pump tells of itself")
    add = status.Components.Add2
    add("Running", "bool", "retain", "false", "The contactor is closed")
    add("Fault", "bool", "retain", "false", "The motor protection tripped")
    add("Hours", "real", "coldretain", "0.0", "Hours of operation")
    return status


def pump_type():
    pump = factory.NewControlModuleType("PumpUnit", "A pump with its contactor")
    pump.AlarmOwner = True
    pump.CMParameters.Add1("Name", "string")
    pump.CMParameters.Add2(
        Name="Start",
        TypeName="bool",
        InitialValue="false",
        ReadPermission="",
        WritePermission="Operate",
        Description="Runs the pump while it is true",
        AutoPoint=factory.NewAutoPoint(constants.pxLeft),
    )
    right = factory.NewAutoPoint(constants.pxRight)
    pump.CMParameters.Add2("Status", "PumpStatus", "", "", "", "", right).Direction = "out"
    pump.Variables.Add1("Feedback", "BoolIO")
    pump.FunctionBlocks.Add1("Supervision", "TON")
    pump.CodeBlocks.AddSTCodeBlock2(
        "Run",
        "Supervision(IN := Start AND NOT Feedback.Value, PT := t#5s);\n"
        "IF Supervision.Q THEN\n"
        "  Status.Fault := true; (* no feedback after 5 s *)\n"
        "END_IF;\n"
        "Status.Running := Start & NOT Status.Fault;",
    )
    return pump


def pump():
    module = factory.NewControlModule("P101", "PumpUnit")
    module.Description = "Feed pump of tank T101"
    module.TaskConnection = "Fast"
    module.CMConnections.Add1("Name", "'P101'")
    start = module.CMConnections.Add2("Start", "P101_Start", True)
    start.Points.Add1(-0.8, 0.25)
    start.Points.Add1(-0.8, 0.6)
    module.CMConnections.Add1("Status", "P101_Status")
    module.GraphPos.XPos = -0.5
    module.GraphPos.XScale = 0.1
    module.GraphPos.YScale = 0.1
    return module


def level_control():
    """The level control of tank T101 in Structured Text."""
    program = factory.NewProgram("LevelControl", "Keeps the level of tank T101")
    program.TaskConnection = "Fast"
    add = program.Variables.Add2
    add("Setpoint", "real", "coldretain", "2.5", "", "Operate", "In metres")
    add("Valve", "real", "retain", "0.0", "", "", "Opening of valve V102 in per cent")
    program.FunctionBlocks.Add2("Controller", "PidSimple", "Fast", "", "Level controller")
    program.Signals.Add1("LevelHigh", "TankFarm.LevelControl.High", "out", 1)
    program.InitValues.Add1("TankFarm.LevelControl.Controller", "Gain", "1.2")
    program.CodeBlocks.AddSTCodeBlock2(
        "Control",
        "Controller(Sp := Setpoint, Pv := LT101.Value);\n"
        "IF LT101.Value > 4.5 THEN\n"
        "  Valve := 100.0; (* drain before it overflows *)\n"
        "ELSE\n"
        "  Valve := Controller.Out;\n"
        "END_IF;",
    )
    return program


def add_filling(sequence):
    """Fills the tank with the pump and the inlet valve at the same time."""
    branches = sequence.AddSimultaneous1(2).SFCBranches
    branches(1).SFCElements.AddStep2(
        "RunPump", False, "", "P101_Start := true;", "P101_Start := false;"
    )
    branches(2).SFCElements.AddStep2(
        "OpenInlet", False, "V101_Open := true;", "", "V101_Open := false;"
    )


def add_first_level(sequence):
    """An empty tank is filled; one with enough in it only has its outlet opened."""
    branches = sequence.AddSelection1(2).SFCBranches
    empty = branches(1)
    empty.SFCPriority = constants.pxSFCPriorityHigh
    empty.SFCElements.AddTransition2("IsEmpty", "LT101.Value < 1.0", "")
    add_filling(empty.SFCElements)
    empty.SFCElements.AddTransition2("IsFilled", "LT101.Value >= 2.0", "")
    full = branches(2).SFCElements
    full.AddTransition2("HasEnough", "LT101.Value >= 1.0", "")
    full.AddStep2("OpenOutlet", False, "V102_Open := true;", "", "")
    full.AddTransition2("IsOpen", "V102_IsOpen", "")


def start_sequence():
    """The start of the section as a sequential function chart."""
    program = factory.NewProgram("StartSequence", "Brings the section into operation")
    program.TaskConnection = "Slow"
    program.Variables.Add1("Start", "bool")
    chart = program.CodeBlocks.AddSFCCodeBlock2("Sequence", True, True).SFCElements
    chart.AddStep2("Idle", True, "", "Lamp_Ready := true;", "Lamp_Ready := false;")
    chart.AddTransition2("Go", "Start & NOT P101_Status.Fault", "")
    add_first_level(chart)
    chart.AddStep2("InOperation", False, "", "Lamp_Running := true;", "Lamp_Running := false;")
    chart.AddTransition2("Stop", "NOT Start", "Idle")
    return program


def interlocks():
    diagram = factory.NewDiagram("Interlocks", "What keeps the pump from running")
    diagram.TaskConnection = "Fast"
    diagram.Variables.Add1("Permit", "bool")
    diagram.FunctionBlocks.Add1("RestartDelay", "TON")
    diagram.DiagramInstances.Add1("P101_Permit", "StartPermit")
    code = Dispatch("PraxenHelper.FDCodeBlock")
    code.Name = "Permits"
    code.FDAsXMLStr = (
        "<FunctionDiagram><Block Name='And' Type='AND'/>"
        "<Wire From='LT101.Status' To='And.In1'/></FunctionDiagram>"
    )
    diagram.CodeBlocks.AddFDCodeBlock(code)
    return diagram


def add_analog_inputs(modules):
    inputs = modules.Add2("0.11.1", "AI8", "Analog inputs, 8 channels", "")
    inputs.ParameterSettings.Add1("Signal range", "4..20 mA")
    add = inputs.HWChannels.Add2
    add(
        "IW0.11.1.1", "Input 1", "TankFarm.LT101", "Level of tank T101", "0", "5", "m", "2", False
    )
    add(
        "IW0.11.1.2", "Input 2", "TankFarm.FT101", "Flow into tank T101", "0", "60", "m3/h", "1",
        False,
    )


def add_digital_outputs(modules):
    outputs = modules.Add2("0.11.2", "DO16", "Digital outputs, 16 channels", "")
    outputs.HWSimulationSupported = True
    add = outputs.HWChannels.Add1
    add("QX0.11.2.1", "Output 1", "TankFarm.P101_Start", "Contactor of pump P101")
    add("QX0.11.2.2", "Output 2", "TankFarm.V101_Open", "Inlet valve V101")
    add("QX0.11.2.3", "Output 3", "TankFarm.V102_Open", "Outlet valve V102").Reversed = True


def hardware():
    """The controller with its modules, and which variable each channel is connected to."""
    controller = factory.NewHWUnit1("0", "CPU_M1", "Controller of the tank farm", "")
    controller.InstanceName = "Controller_1"
    controller.ParameterSettings.Add1("IP address", "192.0.2.10")
    bus = controller.HWUnits.Add2("0.11", "IOBUS", "Bus of the modules", "")
    add_analog_inputs(bus.HWUnits)
    add_digital_outputs(bus.HWUnits)
    return controller


def fast_task():
    task = factory.NewTask("Fast", 100, constants.pxTaskPriority1)
    task.LatencySupervision = True
    return task


def slow_task():
    return factory.NewTask1("Slow", 1000, constants.pxTaskPriority3, 50, constants.pxUpdateFirst)


def execution_order():
    order = factory.NewExecutionOrder()
    fast = order.Add1("Fast")
    for unit in ("LevelControl", "Interlocks", "P101"):
        fast.Add1(unit)
    order.Add1("Slow").Add1("StartSequence")
    return order


def project_constants():
    """The dots in the names make groups: the document has Tank, and T101 in it."""
    made = factory.NewProjectConstants()
    made.Add1("Tank.T101.Height", "real", "5.0")
    made.Add1("Tank.T101.Area", "real", "1.77")
    made.Add1("Pump.RestartDelay", "time", "30s")
    return made


def access_variables():
    access = factory.NewAccessVariables()
    named = access.VAProtocols.AddVANamedProtocol1("MMS")
    named.Add2("TankLevel", "TankFarm.LT101.Value", "ReadOnly", 1)
    named.Add1("Setpoint", "TankFarm.LevelControl.Setpoint")
    addressed = access.VAProtocols.AddVAAddressedProtocol1("Serial")
    addressed.Add1("40001", "TankFarm.LT101.Value")
    return access


def connected_libraries():
    libraries = factory.NewConnectedLibraries()
    libraries.Add2("BasicLib", 1, 8, 3)
    libraries.Add1("PumpLib")
    return libraries


def application_variables():
    made = factory.NewApplicationVariables("Variables of TankFarm")
    made.GlobalVariables.Add2(
        "PlantMode", "dint", "retain", "0", "", "Engineer", "0 = off, 1 = manual, 2 = auto"
    )
    for measured in ("LT101", "FT101"):
        made.Variables.Add1(measured, "RealIO")
    for driven in ("P101_Start", "V101_Open", "V102_Open"):
        made.Variables.Add1(driven, "BoolIO")
    made.Variables.Add1("P101_Status", "PumpStatus")
    return made


def application_properties():
    return factory.NewApplicationProperties("SIL2", False)


# The file of each document, what builds it and what reads it.
DOCUMENTS = (
    ("pump_status.xml", pump_status, factory.DeserializeDataType),
    ("pump_type.xml", pump_type, factory.DeserializeControlModuleType),
    ("pump.xml", pump, factory.DeserializeControlModule),
    ("level_control.xml", level_control, factory.DeserializeProgram),
    ("start_sequence.xml", start_sequence, factory.DeserializeProgram),
    ("interlocks.xml", interlocks, factory.DeserializeDiagram),
    ("hardware.xml", hardware, factory.DeserializeHWUnit),
    ("fast_task.xml", fast_task, factory.DeserializeTask),
    ("slow_task.xml", slow_task, factory.DeserializeTask),
    ("execution_order.xml", execution_order, factory.DeserializeExecutionOrder),
    ("constants.xml", project_constants, factory.DeserializeProjectConstants),
    ("access.xml", access_variables, factory.DeserializeAccessVariables),
    ("libraries.xml", connected_libraries, factory.DeserializeConnectedLibraries),
    ("variables.xml", application_variables, factory.DeserializeApplicationVariables),
    ("properties.xml", application_properties, factory.DeserializeApplicationProperties),
)


def keep(file, document, read):
    """Stores the document in the file and reads it back."""
    save(file, document)
    same = read(load(file)).Serialize() == document
    outcome = "the same" if same else "DIFFERENT"
    print(f"{file.name}: {len(document)} characters, read back {outcome}")
    return same


def keep_plant(folder):
    folder.mkdir(parents=True, exist_ok=True)
    kept = [keep(folder / name, build().Serialize(), read) for name, build, read in DOCUMENTS]
    return all(kept)


def main():
    if len(sys.argv) > 1:
        return keep_plant(pathlib.Path(sys.argv[1]))
    with tempfile.TemporaryDirectory() as folder:
        return keep_plant(pathlib.Path(folder))


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
