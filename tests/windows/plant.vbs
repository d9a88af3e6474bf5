' The small plant section of examples/plant.cpp, built by a script: the same documents.
' Writes them into the folder given as argument. Ends with "passed", which a script that an error
' stopped does not.
Option Explicit

Dim factory, folder
Set factory = CreateObject("PraxenHelper.ObjectFactory")
folder = WScript.Arguments(0)

Function LoadDocument(file)
  Dim stream
  Set stream = CreateObject("Scripting.FileSystemObject").OpenTextFile(file, 1, False, -1)
  LoadDocument = stream.ReadAll
  stream.Close
End Function

Sub SaveDocument(file, xml)
  Dim stream
  Set stream = CreateObject("Scripting.FileSystemObject").CreateTextFile(file, True, True)
  stream.Write xml
  stream.Close
End Sub

' Stores the document as a file, which has to hold it afterwards.
Sub Keep(name, document)
  SaveDocument folder & "\" & name, document
  If LoadDocument(folder & "\" & name) <> document Then Err.Raise 1, , name & " reads differently"
End Sub

Function PumpStatus
  Set PumpStatus = factory.NewDataType("PumpStatus", "What a pump tells of itself")
  With PumpStatus.Components
    .Add2 "Running", "bool", "retain", "false", "The contactor is closed"
    .Add2 "Fault", "bool", "retain", "false", "The motor protection tripped"
    .Add2 "Hours", "real", "coldretain", "0.0", "Hours of operation"
  End With
End Function

Function PumpType
  Dim code, status
  Set PumpType = factory.NewControlModuleType("PumpUnit", "A pump with its contactor")
  PumpType.AlarmOwner = True
  PumpType.CMParameters.Add1 "Name", "string"
  PumpType.CMParameters.Add2 "Start", "bool", "false", "", "Operate", _
      "Runs the pump while it is true", factory.NewAutoPoint(2)
  Set status = PumpType.CMParameters.Add2("Status", "PumpStatus", "", "", "", "", _
      factory.NewAutoPoint(3))
  status.Direction = "out"
  PumpType.Variables.Add1 "Feedback", "BoolIO"
  PumpType.FunctionBlocks.Add1 "Supervision", "TON"
  code = "Supervision(IN := Start AND NOT Feedback.Value, PT := t#5s);" & vbLf & _
      "IF Supervision.Q THEN" & vbLf & _
      "  Status.Fault := true; (* no feedback after 5 s *)" & vbLf & _
      "END_IF;" & vbLf & _
      "Status.Running := Start & NOT Status.Fault;"
  PumpType.CodeBlocks.AddSTCodeBlock2 "Run", code
End Function

Function Pump
  Dim start
  Set Pump = factory.NewControlModule("P101", "PumpUnit")
  Pump.Description = "Feed pump of tank T101"
  Pump.TaskConnection = "Fast"
  Pump.CMConnections.Add1 "Name", "'P101'"
  Set start = Pump.CMConnections.Add2("Start", "P101_Start", True)
  start.Points.Add1 -0.8, 0.25
  start.Points.Add1 -0.8, 0.6
  Pump.CMConnections.Add1 "Status", "P101_Status"
  Pump.GraphPos.XPos = -0.5
  Pump.GraphPos.XScale = 0.1
  Pump.GraphPos.YScale = 0.1
End Function

Function LevelControl
  Set LevelControl = factory.NewProgram("LevelControl", "Keeps the level of tank T101")
  LevelControl.TaskConnection = "Fast"
  With LevelControl.Variables
    .Add2 "Setpoint", "real", "coldretain", "2.5", "", "Operate", "In metres"
    .Add2 "Valve", "real", "retain", "0.0", "", "", "Opening of valve V102 in per cent"
  End With
  LevelControl.FunctionBlocks.Add2 "Controller", "PidSimple", "Fast", "", "Level controller"
  LevelControl.Signals.Add1 "LevelHigh", "TankFarm.LevelControl.High", "out", 1
  LevelControl.InitValues.Add1 "TankFarm.LevelControl.Controller", "Gain", "1.2"
  LevelControl.CodeBlocks.AddSTCodeBlock2 "Control", _
      "Controller(Sp := Setpoint, Pv := LT101.Value);" & vbLf & _
      "IF LT101.Value > 4.5 THEN" & vbLf & _
      "  Valve := 100.0; (* drain before it overflows *)" & vbLf & _
      "ELSE" & vbLf & _
      "  Valve := Controller.Out;" & vbLf & _
      "END_IF;"
End Function

' Fills the tank with the pump and the inlet valve at the same time.
Sub AddFilling(sequence)
  Dim branches
  Set branches = sequence.AddSimultaneous1(2).SFCBranches
  branches(1).SFCElements.AddStep2 "RunPump", False, "", "P101_Start := true;", _
      "P101_Start := false;"
  branches(2).SFCElements.AddStep2 "OpenInlet", False, "V101_Open := true;", "", _
      "V101_Open := false;"
End Sub

' An empty tank is filled; one with enough in it only has its outlet opened.
Sub AddFirstLevel(sequence)
  Dim branches, full
  Set branches = sequence.AddSelection1(2).SFCBranches
  branches(1).SFCPriority = 4
  branches(1).SFCElements.AddTransition2 "IsEmpty", "LT101.Value < 1.0", ""
  AddFilling branches(1).SFCElements
  branches(1).SFCElements.AddTransition2 "IsFilled", "LT101.Value >= 2.0", ""
  Set full = branches(2).SFCElements
  full.AddTransition2 "HasEnough", "LT101.Value >= 1.0", ""
  full.AddStep2 "OpenOutlet", False, "V102_Open := true;", "", ""
  full.AddTransition2 "IsOpen", "V102_IsOpen", ""
End Sub

Function StartSequence
  Dim chart
  Set StartSequence = factory.NewProgram("StartSequence", "Brings the section into operation")
  StartSequence.TaskConnection = "Slow"
  StartSequence.Variables.Add1 "Start", "bool"
  Set chart = StartSequence.CodeBlocks.AddSFCCodeBlock2("Sequence", True, True).SFCElements
  chart.AddStep2 "Idle", True, "", "Lamp_Ready := true;", "Lamp_Ready := false;"
  chart.AddTransition2 "Go", "Start & NOT P101_Status.Fault", ""
  AddFirstLevel chart
  chart.AddStep2 "InOperation", False, "", "Lamp_Running := true;", "Lamp_Running := false;"
  chart.AddTransition2 "Stop", "NOT Start", "Idle"
End Function

Function Interlocks
  Dim code
  Set Interlocks = factory.NewDiagram("Interlocks", "What keeps the pump from running")
  Interlocks.TaskConnection = "Fast"
  Interlocks.Variables.Add1 "Permit", "bool"
  Interlocks.FunctionBlocks.Add1 "RestartDelay", "TON"
  Interlocks.DiagramInstances.Add1 "P101_Permit", "StartPermit"
  Set code = CreateObject("PraxenHelper.FDCodeBlock")
  code.Name = "Permits"
  code.FDAsXMLStr = "<FunctionDiagram><Block Name='And' Type='AND'/>" & _
      "<Wire From='LT101.Status' To='And.In1'/></FunctionDiagram>"
  Interlocks.CodeBlocks.AddFDCodeBlock code
End Function

Sub AddAnalogInputs(modules)
  Dim inputs
  Set inputs = modules.Add2("0.11.1", "AI8", "Analog inputs, 8 channels", "")
  inputs.ParameterSettings.Add1 "Signal range", "4..20 mA"
  inputs.HWChannels.Add2 "IW0.11.1.1", "Input 1", "TankFarm.LT101", "Level of tank T101", _
      "0", "5", "m", "2", False
  inputs.HWChannels.Add2 "IW0.11.1.2", "Input 2", "TankFarm.FT101", "Flow into tank T101", _
      "0", "60", "m3/h", "1", False
End Sub

Sub AddDigitalOutputs(modules)
  Dim outputs
  Set outputs = modules.Add2("0.11.2", "DO16", "Digital outputs, 16 channels", "")
  outputs.HWSimulationSupported = True
  outputs.HWChannels.Add1 "QX0.11.2.1", "Output 1", "TankFarm.P101_Start", _
      "Contactor of pump P101"
  outputs.HWChannels.Add1 "QX0.11.2.2", "Output 2", "TankFarm.V101_Open", "Inlet valve V101"
  outputs.HWChannels.Add1("QX0.11.2.3", "Output 3", "TankFarm.V102_Open", _
      "Outlet valve V102").Reversed = True
End Sub

' The controller with its modules, and which variable each channel is connected to.
Function Hardware
  Dim bus
  Set Hardware = factory.NewHWUnit1("0", "CPU_M1", "Controller of the tank farm", "")
  Hardware.InstanceName = "Controller_1"
  Hardware.ParameterSettings.Add1 "IP address", "192.0.2.10"
  Set bus = Hardware.HWUnits.Add2("0.11", "IOBUS", "Bus of the modules", "")
  AddAnalogInputs bus.HWUnits
  AddDigitalOutputs bus.HWUnits
End Function

Function FastTask
  Set FastTask = factory.NewTask("Fast", 100, 1)
  FastTask.LatencySupervision = True
End Function

Function ExecutionOrder
  Dim fast, unit
  Set ExecutionOrder = factory.NewExecutionOrder
  Set fast = ExecutionOrder.Add1("Fast")
  For Each unit In Array("LevelControl", "Interlocks", "P101")
    fast.Add1 unit
  Next
  ExecutionOrder.Add1("Slow").Add1 "StartSequence"
End Function

Function ProjectConstants
  Set ProjectConstants = factory.NewProjectConstants
  ProjectConstants.Add1 "Tank.T101.Height", "real", "5.0"
  ProjectConstants.Add1 "Tank.T101.Area", "real", "1.77"
  ProjectConstants.Add1 "Pump.RestartDelay", "time", "30s"
End Function

Function AccessVariables
  Dim named, addressed
  Set AccessVariables = factory.NewAccessVariables
  Set named = AccessVariables.VAProtocols.AddVANamedProtocol1("MMS")
  named.Add2 "TankLevel", "TankFarm.LT101.Value", "ReadOnly", 1
  named.Add1 "Setpoint", "TankFarm.LevelControl.Setpoint"
  Set addressed = AccessVariables.VAProtocols.AddVAAddressedProtocol1("Serial")
  addressed.Add1 "40001", "TankFarm.LT101.Value"
End Function

Function Libraries
  Set Libraries = factory.NewConnectedLibraries
  Libraries.Add2 "BasicLib", 1, 8, 3
  Libraries.Add1 "PumpLib"
End Function

Function Variables
  Dim name
  Set Variables = factory.NewApplicationVariables("Variables of TankFarm")
  Variables.GlobalVariables.Add2 "PlantMode", "dint", "retain", "0", "", "Engineer", _
      "0 = off, 1 = manual, 2 = auto"
  For Each name In Array("LT101", "FT101")
    Variables.Variables.Add1 name, "RealIO"
  Next
  For Each name In Array("P101_Start", "V101_Open", "V102_Open")
    Variables.Variables.Add1 name, "BoolIO"
  Next
  Variables.Variables.Add1 "P101_Status", "PumpStatus"
End Function

Keep "pump_status.xml", PumpStatus.Serialize
Keep "pump_type.xml", PumpType.Serialize
Keep "pump.xml", Pump.Serialize
Keep "level_control.xml", LevelControl.Serialize
Keep "start_sequence.xml", StartSequence.Serialize
Keep "interlocks.xml", Interlocks.Serialize
Keep "hardware.xml", Hardware.Serialize
Keep "fast_task.xml", FastTask.Serialize
Keep "slow_task.xml", factory.NewTask1("Slow", 1000, 3, 50, 0).Serialize
Keep "execution_order.xml", ExecutionOrder.Serialize
Keep "constants.xml", ProjectConstants.Serialize
Keep "access.xml", AccessVariables.Serialize
Keep "libraries.xml", Libraries.Serialize
Keep "variables.xml", Variables.Serialize
Keep "properties.xml", factory.NewApplicationProperties("SIL2", False).Serialize
WScript.Echo "passed"
