object StockForm: TStockForm
  Left = 200
  Top = 100
  BorderStyle = bsSingle
  Caption = 'Stock'
  ClientHeight = 300
  ClientWidth = 480
  OldCreateOrder = False
  PixelsPerInch = 96
  TextHeight = 13
  object lblItem: TLabel
    Left = 16
    Top = 16
    Width = 30
    Height = 13
    Caption = 'Item'
  end
  object lblWeight: TLabel
    Left = 16
    Top = 48
    Width = 40
    Height = 13
    Caption = 'Weight'
  end
  object lblUnit: TLabel
    Left = 196
    Top = 48
    Width = 12
    Height = 13
    Caption = 'kg'
  end
  object lblTotalWeight: TLabel
    Left = 240
    Top = 48
    Width = 70
    Height = 13
    Caption = 'Total weight'
  end
  object edtItem: TEdit
    Left = 80
    Top = 12
    Width = 110
    Height = 21
    TabOrder = 0
    Text = 'Bolt M8'
  end
  object edtWeight: TEdit
    Left = 80
    Top = 44
    Width = 110
    Height = 21
    TabOrder = 1
  end
  object edtTotal: TEdit
    Left = 330
    Top = 44
    Width = 110
    Height = 21
    Enabled = False
    ReadOnly = True
    TabOrder = 2
    Text = '120'
  end
  object chkFragile: TCheckBox
    Left = 16
    Top = 80
    Width = 97
    Height = 17
    Caption = 'Fragile'
    TabOrder = 3
  end
  object rbShelf: TRadioButton
    Left = 240
    Top = 80
    Width = 97
    Height = 17
    Caption = 'Shelf'
    TabOrder = 4
  end
  object pnlIn: TPanel
    Left = 16
    Top = 112
    Width = 216
    Height = 60
    Caption = 'Incoming'
    TabOrder = 5
    object btnInAdd: TButton
      Left = 8
      Top = 24
      Width = 75
      Height = 25
      Caption = 'Add'
      TabOrder = 0
    end
    object btnInBook: TBitBtn
      Left = 96
      Top = 24
      Width = 75
      Height = 25
      Caption = 'Book'
      Enabled = False
      TabOrder = 1
    end
  end
  object pnlOut: TPanel
    Left = 240
    Top = 112
    Width = 216
    Height = 60
    TabOrder = 6
    object btnOutAdd: TButton
      Left = 8
      Top = 24
      Width = 75
      Height = 25
      Caption = 'Add'
      TabOrder = 0
    end
  end
  object btnShelf: TButton
    Left = 16
    Top = 192
    Width = 120
    Height = 25
    Caption = 'Shelf 4/5'
    TabOrder = 7
  end
  object btnSure: TButton
    Left = 150
    Top = 192
    Width = 75
    Height = 25
    Hint = 'Ask the keeper'
    Caption = 'Sure?'
    TabOrder = 8
  end
  object btnPrice: TButton
    Left = 240
    Top = 192
    Width = 75
    Height = 25
    Caption = 'US$ 5'
    TabOrder = 9
  end
  object btn_print: TButton
    Left = 330
    Top = 192
    Width = 75
    Height = 25
    Hint = 'Print'
    TabOrder = 10
  end
  object btnHidden: TButton
    Left = 16
    Top = 232
    Width = 75
    Height = 25
    Caption = 'Hidden'
    TabOrder = 11
    Visible = False
  end
  object btnBelow: TButton
    Left = 110
    Top = 236
    Width = 60
    Height = 17
    Caption = 'Below'
    TabOrder = 12
  end
  object btnAbove: TButton
    Left = 104
    Top = 232
    Width = 75
    Height = 25
    Caption = 'Above'
    TabOrder = 13
  end
end
