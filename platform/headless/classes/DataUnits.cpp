// Data sets, fields, connections: DB, DBTables, ADODB, SqlExpr, DBClient, IBX. Nothing here opens a database;
// the chains alone say what the components are.
#include "platform/headless/classes/HClassTables.h"

namespace rux {

namespace {

void RegisterFields(HClasses& classes) {
    classes.Add("TField", "TComponent", nullptr,
                Join({Texts({"ConstraintErrorMessage", "CustomConstraint", "DefaultExpression",
                             "DisplayLabel", "EditMask", "FieldName", "ImportedConstraint", "KeyFields",
                             "LookupKeyFields", "LookupResultField", "Origin"}),
                      Objects({"LookupDataSet"}),
                      Bools({"Lookup", "LookupCache", "ReadOnly", "Required"}),
                      Bools({"Visible"}, true),
                      Ints({"DisplayWidth", "Index", "Size"}),
                      {KeptEnum("Alignment", "TAlignment")}}));
    AddChildren(classes, "TField",
                {"TStringField", "TNumericField", "TBooleanField", "TDateTimeField", "TSQLTimeStampField",
                 "TBinaryField", "TBlobField", "TObjectField", "TVariantField", "TInterfaceField",
                 "TAggregateField"});
    AddChildren(classes, "TStringField", {"TWideStringField", "TGuidField", "TIBStringField"});
    AddChildren(classes, "TNumericField",
                {"TIntegerField", "TFloatField", "TBCDField", "TFMTBCDField", "TLargeintField"});
    AddChildren(classes, "TIntegerField", {"TSmallintField", "TWordField", "TAutoIncField"});
    classes.Add("TCurrencyField", "TFloatField");
    classes.Add("TIBBCDField", "TBCDField");
    AddChildren(classes, "TDateTimeField", {"TDateField", "TTimeField"});
    AddChildren(classes, "TBinaryField", {"TBytesField", "TVarBytesField"});
    AddChildren(classes, "TBlobField", {"TMemoField", "TWideMemoField", "TGraphicField"});
    AddChildren(classes, "TObjectField", {"TADTField", "TArrayField", "TDataSetField", "TReferenceField"});
}

void RegisterDataSets(HClasses& classes) {
    AddChildren(classes, "TComponent", {"TDataSet", "TCustomConnection"});
    AddChildren(classes, "TDataSet",
                {"TCustomADODataSet", "TCustomClientDataSet", "TCustomSQLDataSet", "TBDEDataSet",
                 "TIBCustomDataSet"});
    AddChildren(classes, "TCustomADODataSet", {"TADODataSet", "TADOTable", "TADOQuery", "TADOStoredProc"});
    classes.Add("TClientDataSet", "TCustomClientDataSet");
    AddChildren(classes, "TCustomClientDataSet", {"TCustomCachedDataSet", "TSimpleDataSet"});
    classes.Add("TInternalSQLDataSet", "TCustomSQLDataSet");
    AddChildren(classes, "TCustomSQLDataSet", {"TSQLDataSet", "TSQLQuery", "TSQLTable", "TSQLStoredProc"});
    AddChain(classes, "TBDEDataSet", {"TDBDataSet"});
    AddChildren(classes, "TDBDataSet", {"TTable", "TQuery", "TStoredProc"});
    AddChildren(classes, "TIBCustomDataSet", {"TIBDataSet", "TIBQuery", "TIBTable", "TIBStoredProc"});
}

void RegisterConnections(HClasses& classes) {
    AddChildren(classes, "TCustomConnection",
                {"TADOConnection", "TDatabase", "TSQLConnection", "TIBDatabase", "TCustomRemoteServer"});
    AddChildren(classes, "TCustomRemoteServer",
                {"TDispatchConnection", "TLocalConnection", "TSharedConnection"});
    AddChildren(classes, "TDispatchConnection", {"TStreamedConnection", "TCOMConnection"});
    classes.Add("TSocketConnection", "TStreamedConnection");
    classes.Add("TDCOMConnection", "TCOMConnection");
    AddChildren(classes, "TComponent",
                {"TADOCommand", "TRDSConnection", "TSession", "TBatchMove", "TUpdateSQL", "TSQLMonitor",
                 "TIBTransaction", "TIBSQL", "TIBUpdateSQL", "TIBEvents", "TCustomProvider"});
    AddChain(classes, "TCustomProvider", {"TBaseProvider", "TDataSetProvider"});
}

/// A later toolkit's own access library.
void RegisterLaterDataSets(HClasses& classes) {
    AddChain(classes, "TDataSet",
             {"TFDDataSet", "TFDAdaptedDataSet", "TFDRdbmsDataSet", "TFDCustomQuery", "TFDQuery"});
    AddChain(classes, "TFDAdaptedDataSet", {"TFDCustomMemTable", "TFDMemTable"});
    classes.Add("TFDMetaInfoQuery", "TFDAdaptedDataSet");
    AddChain(classes, "TCustomConnection", {"TFDCustomConnection", "TFDConnection"});
    classes.Add("TFDComponent", "TComponent");
    AddChildren(classes, "TFDComponent", {"TFDPhysDriverLink", "TFDGUIxWaitCursor", "TFDMoniClientLinkBase"});
    AddChildren(classes, "TFDPhysDriverLink",
                {"TFDPhysFBDriverLink", "TFDPhysIBDriverLink", "TFDPhysMSSQLDriverLink",
                 "TFDPhysMySQLDriverLink", "TFDPhysPgDriverLink", "TFDPhysSQLiteDriverLink"});
    AddChildren(classes, "TFDMoniClientLinkBase",
                {"TFDMoniRemoteClientLink", "TFDMoniFlatFileClientLink", "TFDMoniCustomClientLink"});
}

}  // namespace

void RegisterDataUnits(HClasses& classes) {
    RegisterFields(classes);
    RegisterDataSets(classes);
    RegisterConnections(classes);
    RegisterLaterDataSets(classes);
    classes.Add("TDataSource", "TComponent", nullptr,
                {KeptBool("AutoEdit", true), KeptBool("Enabled", true), KeptObject("DataSet")});
}

}  // namespace rux
