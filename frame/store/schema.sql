-- The store of Keelmark. Numbers that are measured are REAL; keys, kinds and flags are INTEGER. Keys that the store gives
-- out are never given twice, so that an open window cannot save under a ship, port or item that has taken the place of
-- one deleted.

PRAGMA application_id = 1262832717; -- "KELM"
PRAGMA user_version = 1;

CREATE TABLE Port (
    PortID INTEGER PRIMARY KEY AUTOINCREMENT,
    PortName TEXT NOT NULL COLLATE NOCASE,
    City TEXT,
    Country TEXT
) STRICT;

CREATE TABLE Ship (
    ShipID INTEGER PRIMARY KEY AUTOINCREMENT,
    ShipName TEXT NOT NULL COLLATE NOCASE,
    LBP REAL,
    LOA REAL,
    Breadth REAL,
    FwdX REAL,
    MidX REAL,
    AftX REAL,
    LightShip REAL,
    CallSign TEXT,
    PortOfRegistry INTEGER REFERENCES Port (PortID) ON DELETE CASCADE,
    OfficialNo REAL,
    IMONo REAL,
    Flag TEXT,
    GrossTonnage REAL,
    NetTonnage REAL,
    SummerDraft REAL,
    SummerDeadweight REAL
) STRICT;
CREATE INDEX ShipsOfPort ON Ship (PortOfRegistry);

CREATE TABLE HydrostaticDataTable (
    ShipID INTEGER NOT NULL REFERENCES Ship (ShipID) ON DELETE CASCADE,
    TMD REAL,
    Displacement REAL,
    TPC REAL,
    MCTC REAL,
    LCB REAL,
    LCF REAL,
    KM REAL,
    KB REAL
) STRICT;
-- Gives a ship's rows sorted by draft, equal drafts in the order of their insertion.
CREATE INDEX HydrostaticRowsOfShip ON HydrostaticDataTable (ShipID, TMD);

CREATE TABLE DeductionMaster (
    ItemID INTEGER PRIMARY KEY AUTOINCREMENT,
    ItemName TEXT NOT NULL COLLATE NOCASE
) STRICT;

CREATE TABLE DraftParticulars (
    RecordID INTEGER PRIMARY KEY,
    ShipID INTEGER NOT NULL REFERENCES Ship (ShipID) ON DELETE CASCADE,
    VoyageID TEXT NOT NULL COLLATE NOCASE,
    PortID INTEGER NOT NULL REFERENCES Port (PortID) ON DELETE CASCADE,
    Cargo TEXT,
    Constant REAL,
    IsLoading INTEGER NOT NULL CHECK (IsLoading IN (0, 1)),
    UNIQUE (ShipID, VoyageID, PortID)
) STRICT;
CREATE INDEX SurveysOfPort ON DraftParticulars (PortID);
CREATE INDEX VoyagesByDirection ON DraftParticulars (IsLoading, VoyageID);

CREATE TABLE DraftDetails (
    DraftID INTEGER PRIMARY KEY,
    RecordID INTEGER NOT NULL REFERENCES DraftParticulars (RecordID) ON DELETE CASCADE,
    SpecificGravity REAL,
    DraftType INTEGER NOT NULL,
    FwdPortDraft REAL,
    FwdStbdDraft REAL,
    MidshipPortDraft REAL,
    MidshipStbdDraft REAL,
    AftPortDraft REAL,
    AftStbdDraft REAL,
    ListCorrected INTEGER CHECK (ListCorrected IN (0, 1)),
    NetDisplacement REAL,
    Comments TEXT,
    DateTime INTEGER NOT NULL CHECK (DateTime BETWEEN 100000000000 AND 999999999999), -- the digits of yyyyMMddHHmm
    UNIQUE (RecordID, DraftType, DateTime)
) STRICT;

CREATE TABLE DeductionTrans (
    DraftID INTEGER NOT NULL REFERENCES DraftDetails (DraftID) ON DELETE CASCADE,
    ItemID INTEGER NOT NULL REFERENCES DeductionMaster (ItemID) ON DELETE CASCADE,
    Quantity REAL
) STRICT;
CREATE INDEX QuantitiesOfDraft ON DeductionTrans (DraftID);
CREATE INDEX QuantitiesOfItem ON DeductionTrans (ItemID);

CREATE TABLE TipOfDay (
    Tip TEXT NOT NULL
) STRICT;
