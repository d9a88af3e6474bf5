// Every family of objects: built, written, read back, written again.
// Ends with "passed", which a script that an error stopped does not.

var checks = 0, failures = 0;

function check(what, actual, expected) {
  checks++;
  if (actual === expected) return;
  failures++;
  WScript.Echo("FAILED " + what + ": expected " + expected + ", got " + actual);
}

function create(name) { return new ActiveXObject("PraxenHelper." + name); }

function loadDocument(file) {
  var stream = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(file, 1, false, -1);
  var xml = stream.ReadAll();
  stream.Close();
  return xml;
}

function saveDocument(file, xml) {
  var stream = new ActiveXObject("Scripting.FileSystemObject").CreateTextFile(file, true, true);
  stream.Write(xml);
  stream.Close();
}

var files = new ActiveXObject("Scripting.FileSystemObject");
var scratch = files.BuildPath(files.GetSpecialFolder(2), files.GetTempName());

function addVariables(owner) {
  owner.Name = "Unit";
  owner.Variables.Add1("Level", "real");
  owner.Variables.Add2("Open", "bool", "retain", "false", "", "", "Valve position < 5%");
  owner.CodeBlocks.AddSTCodeBlock2("Code", "Level := 1.0;\nOpen := Level > 0.5;");
}

function addParameters(owner) {
  addVariables(owner);
  owner.FunctionBlocks.Add1("Timer", "TON");
}

function fillChart(elements) {
  elements.AddStep2("Start", true, "a := 1;", "", "");
  elements.AddTransition2("Go", "a > 0", "");
  var selection = elements.AddSelection1(2);
  check("branches", selection.SFCBranches.Count, 2);
  elements.AddSubSequence1("Inner").SFCElements.AddStep1("Within");
}

// What is created, what fills it, and what reads it when that is not named like the class.
var families = [
  ["Variable", function(o) { o.Name = "V"; o.TypeName = "real"; o.GraphNodes.Add1("N", 0.5, -1); }],
  ["GlobalVariable", function(o) { o.Name = "G"; o.TypeName = "real"; }],
  ["ExternalVariable", function(o) { o.Name = "E"; o.TypeName = "real"; }],
  ["CommVariable", function(o) { o.Name = "C"; o.TypeName = "real"; o.Direction = "in"; }],
  ["Parameter", function(o) { o.Name = "P"; o.TypeName = "real"; o.Direction = 2; }],
  ["ExtensibleParameter", function(o) { o.Name = "P"; o.TypeName = "real"; }],
  ["CMParameter", function(o) { o.Name = "P"; o.TypeName = "real"; }],
  ["DataType", function(o) { o.Name = "T"; o.Components.Add1("First", "int"); }],
  ["Signal", function(o) { o.Name = "S"; o.Path = "a.b"; o.AcknowledgeGroup = 3; }],
  ["ApplicationVariables", function(o) {
    o.GlobalVariables.Add1("G", "real");
    o.Signals.Add1("S", "p", "in", 1);
  }],
  ["STCodeBlock", function(o) { o.Name = "B"; o.STcode = "x := '<&>';"; }, "CodeBlock"],
  ["LDCodeBlock", function(o) { o.Name = "B"; o.STcode = "ladder"; }, "CodeBlock"],
  ["FBDCodeBlock", function(o) { o.Name = "B"; o.STcode = "diagram"; }, "CodeBlock"],
  ["FDCodeBlock", function(o) { o.Name = "B"; }, "CodeBlock"],
  ["ILCodeBlock", function(o) {
    o.Name = "B";
    o.ILRows.AddRow("l", "LD", "x", "");
    o.ILRows.AddComment("note");
  }, "CodeBlock"],
  ["SFCCodeBlock", function(o) { o.Name = "B"; fillChart(o.SFCElements); }, "CodeBlock"],
  ["CMConnection", function(o) { o.Name = "C"; o.ActualParameter = "x"; }],
  ["FunctionBlockType", addParameters],
  ["FunctionBlock", function(o) { o.Name = "F"; o.TypeName = "TON"; }],
  ["DiagramType", addVariables],
  ["DiagramInstance", function(o) { o.Name = "D"; o.TypeName = "T"; }],
  ["ControlModuleType", function(o) {
    addParameters(o);
    o.ControlModules.AddControlModule("M", "Pump");
    o.ControlModules.AddSingleControlModuleInst("S");
  }],
  ["Program", addParameters],
  ["Diagram", addVariables],
  ["ControlModule", function(o) { o.Name = "M"; o.TypeName = "Pump"; }],
  ["ControlModules", function(o) { o.AddControlModule("M", "Pump"); }],
  ["SingleControlModuleType", addParameters],
  ["SingleControlModuleInst", function(o) { o.Name = "S"; }],
  ["Task", function(o) { o.Name = "Fast"; o.IntervalTime = "50"; o.Priority = 1; }],
  ["ExecutionOrder", function(o) { o.Add1("Fast").Add1("Unit"); }],
  ["ConnectedApplications", function(o) { o.Add2("A", 1, 2, 3); }],
  ["ConnectedLibraries", function(o) { o.Add1("L"); }],
  ["ConnectedHWLibraries", function(o) { o.Add1("H"); }],
  ["ApplicationProperties", function(o) { o.SimulationMark = true; }],
  ["HWUnit", function(o) {
    o.Path = "0";
    o.HWUnits.Add1("0.1").HWChannels.Add1("I1", "Level", "Main.Level", "");
    o.ParameterSettings.Add1("Filter", "on");
  }],
  ["ProjectConstants", function(o) { o.Add1("Plant.Levels.High", "real", "4.5"); }],
  ["AccessVariables", function(o) {
    o.VAProtocols.AddVANamedProtocol1("Named").Add1("a", "Main.a");
    o.VAProtocols.AddVAAddressedProtocol1("Addressed").Add1("%R1", "Main.b");
  }],
  ["MessageBucket", function(o) {
    o.NoOfErrors = 1;
    var message = create("ErrorMsg");
    message.ErrorNo = 17;
    message.Message = "Undeclared";
    o.Add(message);
    check("kind by name", o(1).IsErrorMsg, true);
    check("number", o.Item(1).ErrorNo, 17);
  }]
];

function roundTrip(factory, family) {
  var name = family[0];
  var object = create(name);
  family[1](object);
  var document = object.Serialize();
  saveDocument(scratch, document);
  var copy = factory["Deserialize" + (family[2] || name)](loadDocument(scratch));
  check(name, copy.Serialize(), document);
}

var maintenance = create("maintenance");
var factory = create("ObjectFactory");
CollectGarbage();
var before = maintenance.NrOfObjects;
for (var i = 0; i < families.length; i++) {
  try {
    roundTrip(factory, families[i]);
  } catch (error) {
    check(families[i][0], error.number + " " + error.message, "no error");
  }
}
files.DeleteFile(scratch);
CollectGarbage();
check("objects left", maintenance.NrOfObjects - before, 0);

// A list that a script assigns takes the place of the one before.
var program = create("Program");
var variables = create("Variables");
variables.Add1("a", "real");
program.Variables = variables;
check("assigned list", program.Variables(1).Name, "a");
var names = "";
for (var each = new Enumerator(program.Variables); !each.atEnd(); each.moveNext()) {
  names += each.item().Name;
}
check("enumerator", names, "a");

function errorOf(action) {
  try {
    action();
    return 0;
  } catch (error) {
    return error.number;
  }
}
check("empty fields", errorOf(function() { create("Variable").Serialize(); }) >>> 0, 0x80040259);
check("invalid XML", errorOf(function() { factory.DeserializeTask("<"); }) >>> 0, 0x8004025B);
check("wrong root", errorOf(function() {
  factory.DeserializeTask(program.Variables.Item(1).Serialize());
}) >>> 0, 0x8004025C);

WScript.Echo(checks + " checks, " + failures + " failures");
if (failures === 0) WScript.Echo("passed");
