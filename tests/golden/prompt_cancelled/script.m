box1=[  ];
box3=[  ];
box2=[ 5\q ];
